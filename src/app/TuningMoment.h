#pragma once

#include "app/KeyHolders.h"
#include "tuning/chordName.h"
#include "tuning/intervals.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class Player;

/// How the current temperament is tuned at a moment, and which keys sound.
struct TuningMoment {
    std::array<double, kKeys> hertz{}; ///< As they sound; 0 for a key without a pitch.
    SpelledClasses places{};           ///< Empty if the temperament does not spell.
    std::optional<double> centre;      ///< Of what has sounded, on the chain of fifths.
    double drift = 0.0;                ///< In cents.
    double period = 1200.0;            ///< After which the notes repeat, in cents.
    bool repeatsEveryOctave = true;    ///< With twelve notes in each octave.
    KeySet sounding;

    bool operator==(const TuningMoment&) const = default;
};

/// Reads the moment while holding the player's lock for a few microseconds. Nothing sounds before
/// there is an instrument.
TuningMoment readMoment(Player& player);

/// The interval between two keys that sound.
struct SoundingInterval {
    unsigned lower, upper;
    HeardInterval heard;
};

/// Returns the intervals between all keys that sound or, if there are very many, those above the
/// lowest one. They are ordered by the lower key, then by the upper.
std::vector<SoundingInterval> soundingIntervals(const TuningMoment& moment);

/// Returns the chord that sounds, if it has a name.
std::optional<Chord> soundingChord(const TuningMoment& moment);

/// Returns how pure each sounding key is: as its interval that is farthest from pure, with any
/// other sounding key.
std::array<Purity, kKeys> soundingPurities(const TuningMoment& moment);

/// Returns the names of the pitch classes as `spelling` writes them: as the temperament spells
/// them, or else as a chord does, or else as `usualPlaces` does.
std::array<std::string, 12> toneNames(const TuningMoment& moment,
                                      const std::optional<Chord>& chord = std::nullopt);

} // namespace velmora
