#pragma once

#include "tuning/meantoneGamut.h"

#include <array>
#include <bitset>

namespace velmora {

/// Chooses how struck keys are spelled by following the music along the chain of fifths: a key
/// takes the place nearest to the centre of what has sounded. Places are counted from C, which is
/// 0; G is 1 and F is −1.
class SpellingFollower {
public:
    struct Settings {
        /// The influence of a released note falls to 1/e in so many seconds.
        double memory = 1.2;

        /// How many released notes a held one counts as. See docs/decisions.md, 195.
        double held = 4.0;

        /// Where the centre lies in silence, and how many released notes that counts as.
        double anchor = 3.0;
        double anchorWeight = 2.0;

        /// For so many seconds the notes that follow may still change the spelling of a note, so
        /// that the last note of a chord can mend its first; 0 for never.
        double correction = 0.04;
    };

    SpellingFollower() : SpellingFollower(Settings{}) {}
    explicit SpellingFollower(const Settings& settings) : settings_(settings) {}

    /// Presses a key, 0…139, at a time in seconds. A time before that of an earlier call counts as
    /// that one. A pitch class that sounds keeps its spelling, unless it can still be corrected.
    void strike(unsigned key, double time);

    /// Releases a key. Does nothing if it is not pressed.
    void release(unsigned key, double time);

    /// The place of a pitch class, 0…11, between −15 and 15: its home or twelve fifths from it.
    int place(unsigned pitchClass) const { return classes_[pitchClass].place; }

    /// True if a key of a pitch class, 0…11, is pressed.
    bool isHeld(unsigned pitchClass) const { return classes_[pitchClass].held > 0; }

    /// The weighted mean of the places that have sounded.
    double centre() const;

    const Settings& settings() const { return settings_; }

private:
    struct PitchClass {
        int place = 0;
        int held = 0; ///< The number of its keys that are pressed.
        double struck = 0.0;
    };

    /// A number of released notes and the sum of their places.
    struct Weight {
        double notes = 0.0;
        double places = 0.0;

        void add(double count, double place)
        {
            notes += count;
            places += count * place;
        }
    };

    void forgetUntil(double time);
    double centreWithout(unsigned pitchClass) const;
    void correct();

    Settings settings_;
    double time_ = 0.0;
    Weight released_; ///< What is left at `time_` of the notes that have been released.
    std::bitset<140> pressed_;
    std::array<PitchClass, 12> classes_ = atHome();

    static std::array<PitchClass, 12> atHome();
};

} // namespace velmora
