#pragma once

#include <optional>
#include <string>

namespace velmora {

/// Returns the name of pitch class 0…11, "C" to "B"; empty for any other number.
std::string keyName(unsigned pitchClass);

/// Returns the pitch class 0…11 of a name in any letter case: a letter from A to G, then "#", "♯",
/// "b", "♭" or nothing. Empty for any other text.
std::optional<int> pitchClassOf(const std::string& name);

/// Returns the name of MIDI key 0…127 with its octave. Key 60, middle C, is "C4".
std::string noteName(unsigned key);

} // namespace velmora
