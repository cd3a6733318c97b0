#pragma once

#include <array>

namespace velmora {

/// The General MIDI programs 0…127, each with its number as musicians count it, from 1.
extern const std::array<const char*, 128> kMIDIInstrumentNames;

} // namespace velmora
