#pragma once

#include "sequencer/MusicalTime.h"

namespace velmora {

/// How fast a position moves through the steps of a piece: evenly, or with the tempos of the piece
/// at a speed. Valid while the `MusicalTime` is neither changed nor destroyed.
class Pace {
public:
    explicit Pace(double stepsPerSecond) : rate_(stepsPerSecond) {}

    /// A speed of 1 is the tempo as written, 2 is twice as fast.
    Pace(const MusicalTime& time, double speed) : map_(&time.tempoMap()), rate_(speed) {}

    /// Returns the position `seconds` after a step, or before it if they are negative.
    double stepAfter(double step, double seconds) const
    {
        return map_ == nullptr
                   ? step + rate_ * seconds
                   : map_->beatsAfter(step / kStepsPerBeat, seconds * rate_) * kStepsPerBeat;
    }

    /// Returns the time from one step to another in seconds; negative if `to` is before `from`.
    double secondsBetween(double from, double to) const
    {
        return map_ == nullptr
                   ? (to - from) / rate_
                   : map_->secondsBetween(from / kStepsPerBeat, to / kStepsPerBeat) / rate_;
    }

    /// Returns the steps of a second at a step.
    double stepsPerSecondAt(double step) const
    {
        return map_ == nullptr
                   ? rate_
                   : rate_ * kStepsPerBeat / map_->secondsPerBeatAt(step / kStepsPerBeat);
    }

private:
    const TempoMap* map_ = nullptr; ///< Null for an even pace.
    double rate_;                   ///< Steps a second, or the speed if there is a map.
};

} // namespace velmora
