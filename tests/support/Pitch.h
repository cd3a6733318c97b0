#pragma once

#include <span>

namespace velmora {

/// Measures the frequency in hertz of the partial nearest to `nearHertz` in a steady sound, from
/// the drift of its phase. `nearHertz` must be within much less than a semitone. With one second of
/// sound, the result is precise to a thousandth of a cent.
double measuredHertz(std::span<const float> sound, double rate, double nearHertz);

} // namespace velmora
