#include "tuning/keyName.h"

#include <array>

namespace velmora {

std::string keyName(unsigned pitchClass)
{
    // See docs/decisions.md, 16.
    static constexpr std::array kNames{"C",  "C#", "D",  "D#", "E",  "F",
                                       "F#", "G",  "G#", "A",  "Bb", "B"};
    return pitchClass < kNames.size() ? kNames[pitchClass] : "";
}

std::string noteName(unsigned key)
{
    return keyName(key % 12) + std::to_string(static_cast<int>(key / 12) - 1);
}

} // namespace velmora
