#include "audio/PeakLimiter.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kLookAheadSeconds = 0.0015;
constexpr double kReleaseSeconds = 0.050;

/// A recovering gain above this jumps to 1. The step of 0.00001 dB is inaudible.
constexpr double kRecovered = 0.999999;

} // namespace

const float PeakLimiter::kCeiling = std::pow(10.0F, -0.3F / 20.0F);

PeakLimiter::PeakLimiter(double rate)
    : lookAhead_(static_cast<std::size_t>(std::max(1.0, std::round(rate * kLookAheadSeconds)))),
      release_(1.0 - std::exp(-1.0 / (rate * kReleaseSeconds))), left_(lookAhead_),
      right_(lookAhead_), released_(lookAhead_, 1.0F),
      releasedSum_(static_cast<double>(lookAhead_)), minima_(lookAhead_)
{
}

float PeakLimiter::windowMinimum(float peak)
{
    const float gain = peak > kCeiling ? kCeiling / peak : 1.0F;
    // Drop the gain that has left the window and all earlier gains that are not lower.
    if (minimaCount_ > 0 && minima_[firstMinimum_].time + lookAhead_ <= time_) {
        firstMinimum_ = (firstMinimum_ + 1) % lookAhead_;
        --minimaCount_;
    }
    while (minimaCount_ > 0 &&
           minima_[(firstMinimum_ + minimaCount_ - 1) % lookAhead_].value >= gain)
        --minimaCount_;
    minima_[(firstMinimum_ + minimaCount_) % lookAhead_] = {gain, time_};
    ++minimaCount_;
    ++time_;
    return minima_[firstMinimum_].value;
}

float PeakLimiter::nextGain(float peak)
{
    const double target = windowMinimum(peak);
    recovering_ = target > recovering_ ? recovering_ + release_ * (target - recovering_) : target;
    if (recovering_ > kRecovered)
        recovering_ = target;
    const auto gain = static_cast<float>(recovering_);

    // Each of the last `lookAhead_` gains keeps the oldest sample below the ceiling, so their mean
    // does too, and the mean changes smoothly. The sum of so few floats is exact in a double, so it
    // does not drift.
    index_ = (index_ + 1) % lookAhead_;
    releasedSum_ += static_cast<double>(gain) - static_cast<double>(released_[index_]);
    released_[index_] = gain;
    return static_cast<float>(releasedSum_ / static_cast<double>(lookAhead_));
}

void PeakLimiter::process(float* left, float* right, std::size_t frames)
{
    for (std::size_t i = 0; i < frames; ++i) {
        const float gain = nextGain(std::max(std::fabs(left[i]), std::fabs(right[i])));
        left_[index_] = left[i];
        right_[index_] = right[i];
        const std::size_t oldest = (index_ + 1) % lookAhead_;
        left[i] = std::clamp(left_[oldest] * gain, -kCeiling, kCeiling);
        right[i] = std::clamp(right_[oldest] * gain, -kCeiling, kCeiling);
    }
}

} // namespace velmora
