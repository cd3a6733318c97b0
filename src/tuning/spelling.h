#pragma once

#include <string>

namespace velmora {

/// Returns the name of the note that lies `place` fifths above C, or below it if negative: "G" for
/// 1 and "Bb" for −2. Places run from −22 to 22.
std::string placeName(int place);

/// Returns the name of pitch class 0…11 as the root of a temperament: "Eb" for 3 and "G#" for 8.
std::string rootName(int pitchClass);

} // namespace velmora
