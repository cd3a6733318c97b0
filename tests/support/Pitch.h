#pragma once

#include <span>

namespace velmora {

/// The frequency in hertz of the partial nearest to `nearHertz` in a steady sound, by the slope of
/// the phase of what the sound leaves when that frequency is taken out of it. `nearHertz` must be
/// right to well under a semitone; a second of sound gives a thousandth of a cent.
double measuredHertz(std::span<const float> sound, double rate, double nearHertz);

} // namespace velmora
