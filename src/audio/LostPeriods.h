#pragma once

#include "base/Clock.h"

#include <atomic>
#include <cstdint>

namespace velmora {

/// Counts the periods that came too late. One thread counts; any thread may ask.
class LostPeriods {
public:
    void add()
    {
        lastTime_ = getTime();
        ++count_;
    }

    std::uint64_t count() const { return count_; }

    /// When the last one was counted, in the seconds of `getTime`; 0 before the first.
    double lastTime() const { return lastTime_; }

private:
    std::atomic<std::uint64_t> count_{0};
    std::atomic<double> lastTime_{0.0};
};

} // namespace velmora
