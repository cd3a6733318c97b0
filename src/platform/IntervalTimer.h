#pragma once

#include <chrono>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// Calls back at a steady interval in the event loop of the thread that made it, during menus and
/// dialogs too. The ticks stand on the interval's multiples of CLOCK_MONOTONIC and do not drift.
///
/// Where the loop comes late and several are due, they become one call: what counts ticks then runs
/// slower for that moment, what follows time reads the clock.
class IntervalTimer {
public:
    /// Starts at once; the first tick comes after one interval, which is above 0. Throws
    /// std::system_error where the system has no timer left. `tick` must not destroy the timer.
    IntervalTimer(std::chrono::nanoseconds interval, std::function<void()> tick);
    ~IntervalTimer();

    IntervalTimer(const IntervalTimer&) = delete;
    IntervalTimer& operator=(const IntervalTimer&) = delete;

private:
    void expired() const;

    int descriptor_;
    std::function<void()> tick_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmora
