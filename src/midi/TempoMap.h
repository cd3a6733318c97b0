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

private:
    struct Stretch {
        double beats;   ///< Start in beats.
        double seconds; ///< Start in seconds.
        double secondsPerBeat;
    };

    std::vector<Stretch> stretches_; ///< In order of time; the first starts at 0.
};

} // namespace velmora
