#include "tuning/keyName.h"

#include <array>
#include <string_view>

namespace velmora {

std::string keyName(unsigned pitchClass)
{
    // See docs/decisions.md, 16.
    static constexpr std::array kNames{"C",  "C#", "D",  "D#", "E",  "F",
                                       "F#", "G",  "G#", "A",  "Bb", "B"};
    return pitchClass < kNames.size() ? kNames[pitchClass] : "";
}

std::optional<int> pitchClassOf(const std::string& name)
{
    constexpr std::string_view kLetters = "C D EF G A B"; // by pitch class
    if (name.empty())
        return std::nullopt;
    const char letter =
        name.front() >= 'a' ? static_cast<char>(name.front() - 'a' + 'A') : name.front();
    const std::size_t natural = letter == ' ' ? kLetters.npos : kLetters.find(letter);
    const std::string sign = name.substr(1);
    const bool isSharp = sign == "#" || sign == "♯";
    const bool isFlat = sign == "b" || sign == "♭";
    if (natural == kLetters.npos || (!sign.empty() && !isSharp && !isFlat))
        return std::nullopt;
    return (static_cast<int>(natural) + (isSharp ? 1 : isFlat ? 11 : 0)) % 12;
}

std::string noteName(unsigned key)
{
    return keyName(key % 12) + std::to_string(static_cast<int>(key / 12) - 1);
}

} // namespace velmora
