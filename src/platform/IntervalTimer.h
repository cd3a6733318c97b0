#pragma once

#include <chrono>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// Calls back at a fixed interval in the event loop of the thread that created it, even while menus
/// and dialogs are open. The ticks do not drift from CLOCK_MONOTONIC.
///
/// If the event loop is late and several ticks are due, they are merged into one call. Code that
/// must keep time therefore reads a clock instead of counting ticks.
class IntervalTimer {
public:
    /// Starts the timer; the first tick comes after one interval. `interval` must be positive, and
    /// `tick` must not destroy the timer. Throws std::system_error if the system has no timer left.
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
