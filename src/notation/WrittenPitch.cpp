#include "notation/WrittenPitch.h"

#include <string_view>

namespace velmora {

namespace {

/// The letters on the chain of fifths. The first of them stands at place −1.
constexpr std::string_view kChain = "FCGDAEB";

constexpr std::string_view kLetters = "CDEFGAB";
constexpr int kSemitones[] = {0, 2, 4, 5, 7, 9, 11};

/// More than a double sharp or flat is not written.
constexpr int kLowestPlace = -15, kHighestPlace = 19;

int floorOf(int value, int divisor)
{
    return value >= 0 ? value / divisor : -((divisor - 1 - value) / divisor);
}

/// Returns the pitch class, 0…11, at a place.
int pitchClassOf(int place)
{
    return ((7 * place) % 12 + 12) % 12;
}

/// Returns the usual place of a pitch class: in C major, E♭ to G♯.
int usualPlace(int pitchClass, int fifths)
{
    int place = fifths - 3;
    while (pitchClassOf(place) != pitchClass)
        ++place;
    return place;
}

} // namespace

int WrittenPitch::key() const
{
    return 12 * (octave + 1) + kSemitones[kLetters.find(letter)] + alteration;
}

int WrittenPitch::place() const
{
    return static_cast<int>(kChain.find(letter)) - 1 + 7 * alteration;
}

WrittenPitch writtenPitch(unsigned key, std::optional<int> place, int fifths)
{
    const int pitchClass = static_cast<int>(key % 12);
    if (!place || pitchClassOf(*place) != pitchClass || *place < kLowestPlace ||
        *place > kHighestPlace)
        place = usualPlace(pitchClass, fifths);
    const int alteration = floorOf(*place + 1, 7);
    const char letter = kChain[static_cast<unsigned>(*place + 1 - 7 * alteration)];
    const int octave =
        floorOf(static_cast<int>(key) - alteration - kSemitones[kLetters.find(letter)], 12) - 1;
    return {letter, alteration, octave};
}

} // namespace velmora
