#include "platform/IntervalTimer.h"

#include <QSocketNotifier>

#include <sys/timerfd.h>
#include <unistd.h>

#include <cassert>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <system_error>
#include <utility>

namespace velmora {

namespace {

constexpr long kNanosecondsPerSecond = 1'000'000'000;

timespec toTimespec(std::chrono::nanoseconds time)
{
    return {static_cast<time_t>(time.count() / kNanosecondsPerSecond),
            static_cast<long>(time.count() % kNanosecondsPerSecond)};
}

std::chrono::nanoseconds now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Starts a timer and returns its file descriptor.
int startTimer(std::chrono::nanoseconds interval)
{
    const int descriptor = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (descriptor < 0)
        throw std::system_error(errno, std::generic_category(), "timerfd_create");
    const itimerspec times{toTimespec(interval), toTimespec(now() + interval)};
    [[maybe_unused]] const int error =
        timerfd_settime(descriptor, TFD_TIMER_ABSTIME, &times, nullptr);
    assert(error == 0);
    return descriptor;
}

} // namespace

IntervalTimer::IntervalTimer(std::chrono::nanoseconds interval, std::function<void()> tick)
    : descriptor_((assert(interval.count() > 0), startTimer(interval))), tick_(std::move(tick)),
      notifier_(std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read))
{
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { expired(); });
}

IntervalTimer::~IntervalTimer()
{
    notifier_.reset();
    close(descriptor_);
}

void IntervalTimer::expired() const
{
    // Reading the number of due ticks rearms the notifier.
    std::uint64_t due = 0;
    if (read(descriptor_, &due, sizeof due) == sizeof due)
        tick_();
}

} // namespace velmora
