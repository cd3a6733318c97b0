#pragma once

#include <string>

namespace velmora {

/// The name of pitch class 0 to 11, from "C" to "B"; empty above.
std::string keyName(unsigned pitchClass);

/// The name of MIDI key 0 to 127 with its octave: "C4" is key 60, middle C.
std::string noteName(unsigned key);

} // namespace velmora
