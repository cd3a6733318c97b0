#include "audio/PeriodClock.h"

namespace velmora {

namespace {

/// How much of its lead over the wake-ups the clock gives up in a period.
constexpr double kPull = 0.005;

} // namespace

double PeriodClock::next(double now, double length)
{
    const double expected = start_ + length_;
    wasLate_ = length_ > 0.0 && now - expected > patience_;
    if (length_ == 0.0 || wasLate_ || now < expected)
        start_ = now;
    else
        start_ = expected + kPull * (now - expected);
    length_ = length;
    return start_;
}

} // namespace velmora
