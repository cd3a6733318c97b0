#pragma once

namespace velmora {

/// Gives the periods of a device even moments, although the thread that plays them wakes up now
/// early, now late. No period begins after its thread has woken up, so that whatever happened
/// before it is known by then.
class PeriodClock {
public:
    /// `patience` is how late a wake-up may be, in seconds, before the clock starts anew.
    explicit PeriodClock(double patience) : patience_(patience) {}

    /// Returns the moment at which the next period begins, `now` being the moment of the wake-up.
    /// Both, and the length of the period, are in seconds.
    double next(double now, double length);

    /// True if the last period came so late that the clock started anew.
    bool wasLate() const { return wasLate_; }

private:
    double patience_;
    double start_ = 0.0, length_ = 0.0; ///< Of the last period; a length of 0 before the first.
    bool wasLate_ = false;
};

} // namespace velmora
