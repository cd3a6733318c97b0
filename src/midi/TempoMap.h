#pragma once

#include <cstdint>
#include <vector>

namespace velmora {

/// A change of tempo. A beat is a quarter note.
struct TempoChange {
    double beats; ///< Position from the start of the file.
    std::uint32_t microsecondsPerBeat;
};

/// The tempo of a whole file. Converts beats to seconds, both counted from the start of the file.
class TempoMap {
public:
    /// Creates a constant tempo of 120 beats a minute.
    TempoMap() : TempoMap(std::vector<TempoChange>{}) {}

    /// The tempo is 120 beats a minute up to the first change. The changes may be in any order; of
    /// several at one beat the last one counts. Changes to 0 microseconds are ignored.
    explicit TempoMap(std::vector<TempoChange> changes);

    /// Takes logarithmic time in the number of changes.
    double secondsForBeats(double beats) const;

    /// The inverse of `secondsForBeats`.
    double beatsForSeconds(double seconds) const;

    /// Returns the seconds between two positions in beats; negative if `to` is before `from`. More
    /// exact than a difference of `secondsForBeats` where the tempo does not change.
    double secondsBetween(double from, double to) const;

    /// Returns the beat that comes `seconds` after another one, or before it if they are negative.
    double beatsAfter(double beats, double seconds) const;

    /// Returns the length of a beat at a position, in seconds.
    double secondsPerBeatAt(double beats) const { return stretchAt(beats).secondsPerBeat; }

private:
    struct Stretch {
        double beats;   ///< Start in beats.
        double seconds; ///< Start in seconds.
        double secondsPerBeat;
    };

    const Stretch& stretchAt(double beats) const;

    std::vector<Stretch> stretches_; ///< In order of time; the first starts at 0.
};

} // namespace velmora
