#pragma once

#include <cstdint>
#include <vector>

namespace velmora {

/// From this beat on, a beat (a quarter note) lasts so many microseconds.
struct TempoChange {
    double beats;
    std::uint32_t microsecondsPerBeat;
};

/// The tempo of a whole file: turns beats into seconds, both counted from its beginning.
class TempoMap {
public:
    /// 120 beats a minute throughout.
    TempoMap() : TempoMap(std::vector<TempoChange>{}) {}

    /// 120 beats a minute up to the first change. The changes may stand in any order; of several at
    /// one beat the last holds. A change to 0 microseconds is no tempo and is passed over.
    explicit TempoMap(std::vector<TempoChange> changes);

    /// Looks the tempo up in O(log changes).
    double secondsForBeats(double beats) const;

private:
    struct Stretch {
        double beats;   ///< Where it begins.
        double seconds; ///< Where it begins.
        double secondsPerBeat;
    };

    std::vector<Stretch> stretches_; ///< In order; the first begins at 0.
};

} // namespace velmora
