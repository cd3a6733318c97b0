#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

/// A chord that has a name.
struct Chord {
    enum class Kind : std::uint8_t {
        Major,
        Minor,
        Diminished,
        Augmented,
        SuspendedFourth,
        SuspendedSecond,
        DominantSeventh,
        MajorSeventh,
        MinorSeventh,
        MinorMajorSeventh,
        HalfDiminished,
        DiminishedSeventh,
        AugmentedSixth, ///< Sounds like a dominant seventh; its seventh is spelled as a sixth.
    };
    static constexpr std::size_t kKinds = 13;

    Kind kind = Kind::Major;
    unsigned root = 0;      ///< A pitch class, 0…11.
    unsigned inversion = 0; ///< Which of its notes is the lowest: 0 for the root, 1 for the third…

    bool operator==(const Chord&) const = default;
};

/// The places on the chain of fifths of twelve pitch classes, where C is 0 and G is 1.
using SpelledClasses = std::array<std::optional<int>, 12>;

/// Names the chord of some pitch classes, of which `bass` is the lowest. If the notes are spelled,
/// an augmented sixth is told from a dominant seventh. Empty if the chord has no name.
std::optional<Chord> nameChord(const std::bitset<12>& pitchClasses, unsigned bass,
                               const SpelledClasses& spelled = {});

/// Returns how far above its root each note of a kind of chord lies on the chain of fifths: root,
/// third, fifth and seventh.
std::span<const int> chordPlaces(Chord::Kind kind);

/// Returns the usual spelling of the notes of a chord, with as few sharps or flats as possible.
/// Other pitch classes stay empty.
SpelledClasses spell(const Chord& chord);

} // namespace velmora
