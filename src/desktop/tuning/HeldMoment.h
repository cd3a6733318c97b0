#pragma once

#include "app/TuningMoment.h"

namespace velmora {

/// Holds what sounded for a while, so that a chord can be read after it was played.
class HeldMoment {
public:
    /// For how many seconds a chord stays after it has ended, and after some of its keys were
    /// released, which are seldom released together.
    static constexpr double kAfterAll = 5.0, kAfterSome = 0.5;

    /// Takes what sounds at a time in seconds.
    void take(const TuningMoment& now, double time)
    {
        const bool isLess =
            (now.sounding & ~held_.sounding).none() && now.sounding != held_.sounding;
        if (isLess && time - since_ < (now.sounding.none() ? kAfterAll : kAfterSome))
            return;
        held_ = now;
        since_ = time;
    }

    const TuningMoment& moment() const { return held_; }

private:
    TuningMoment held_;
    double since_ = 0.0; ///< When all of it sounded last.
};

} // namespace velmora
