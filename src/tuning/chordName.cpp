#include "tuning/chordName.h"

#include <cmath>

namespace velmora {

namespace {

struct Pattern {
    Chord::Kind kind;
    unsigned count;
    std::array<int, 4> places;
};

/// By `Chord::Kind`; the first that fits names the chord.
constexpr std::array<Pattern, Chord::kKinds> kPatterns = {{
    {Chord::Kind::Major, 3, {0, 4, 1}},
    {Chord::Kind::Minor, 3, {0, -3, 1}},
    {Chord::Kind::Diminished, 3, {0, -3, -6}},
    {Chord::Kind::Augmented, 3, {0, 4, 8}},
    {Chord::Kind::SuspendedFourth, 3, {0, -1, 1}},
    {Chord::Kind::SuspendedSecond, 3, {0, 2, 1}},
    {Chord::Kind::DominantSeventh, 4, {0, 4, 1, -2}},
    {Chord::Kind::MajorSeventh, 4, {0, 4, 1, 5}},
    {Chord::Kind::MinorSeventh, 4, {0, -3, 1, -2}},
    {Chord::Kind::MinorMajorSeventh, 4, {0, -3, 1, 5}},
    {Chord::Kind::HalfDiminished, 4, {0, -3, -6, -2}},
    {Chord::Kind::DiminishedSeventh, 4, {0, -3, -6, -9}},
    {Chord::Kind::AugmentedSixth, 4, {0, 4, 1, 10}},
}};

/// Returns the pitch class that lies `places` up the chain of fifths from a root.
unsigned classAbove(unsigned root, int places)
{
    constexpr int kOctaves = 12 * 7; // keeps the sum positive
    return (root + static_cast<unsigned>(7 * places + kOctaves)) % 12;
}

bool fits(const Pattern& pattern, unsigned root, const std::bitset<12>& pitchClasses)
{
    if (pitchClasses.count() != pattern.count)
        return false;
    for (const int place : chordPlaces(pattern.kind))
        if (!pitchClasses[classAbove(root, place)])
            return false;
    return true;
}

/// True if the notes are spelled so that the seventh above a root is an augmented sixth.
bool hasAugmentedSixth(unsigned root, const SpelledClasses& spelled)
{
    const auto low = spelled[root], high = spelled[classAbove(root, 10)];
    return low && high && *high - *low == 10;
}

Chord chordOn(const Pattern& pattern, unsigned root, unsigned bass)
{
    Chord chord{pattern.kind, root, 0};
    for (const int place : chordPlaces(pattern.kind)) {
        if (classAbove(root, place) == bass)
            break;
        ++chord.inversion;
    }
    return chord;
}

} // namespace

std::span<const int> chordPlaces(Chord::Kind kind)
{
    const Pattern& pattern = kPatterns[static_cast<std::size_t>(kind)];
    return std::span(pattern.places).first(pattern.count);
}

std::optional<Chord> nameChord(const std::bitset<12>& pitchClasses, unsigned bass,
                               const SpelledClasses& spelled)
{
    // A chord is taken to be in root position if it can be, as symmetrical chords always can.
    for (unsigned step = 0; step < 12; ++step) {
        const unsigned root = (bass + step) % 12;
        for (const Pattern& pattern : kPatterns) {
            if (!fits(pattern, root, pitchClasses))
                continue;
            const bool isSixth =
                pattern.kind == Chord::Kind::DominantSeventh && hasAugmentedSixth(root, spelled);
            return chordOn(isSixth ? kPatterns.back() : pattern, root, bass);
        }
    }
    return std::nullopt;
}

SpelledClasses spell(const Chord& chord)
{
    constexpr double kMiddle = 2.0; // D has as many sharps above as flats below
    const auto places = chordPlaces(chord.kind);
    double mean = 0.0;
    for (const int place : places)
        mean += static_cast<double>(place) / static_cast<double>(places.size());
    // A semitone is seven fifths, apart from octaves.
    const int root = static_cast<int>(chord.root) * 7;
    const int circles = static_cast<int>(std::lround((kMiddle - mean - root) / 12.0));
    SpelledClasses spelled{};
    for (const int place : places)
        spelled[classAbove(chord.root, place)] = root + 12 * circles + place;
    return spelled;
}

} // namespace velmora
