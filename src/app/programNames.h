#pragma once

#include <array>

namespace velmora {

/// The names of the General MIDI programs 0…127. Each begins with its number counted from 1. They
/// can be translated in the context "velmora::programNames".
extern const std::array<const char*, 128> kMIDIInstrumentNames;

} // namespace velmora
