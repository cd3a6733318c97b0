#include "audio/TestTone.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora {

namespace {

constexpr double kHertz = 440.0;
constexpr double kSeconds = 1.0;
constexpr double kFadeSeconds = 0.05;
constexpr double kAmplitude = 0.1;

} // namespace

void TestTone::render(float* left, float* right, std::size_t frames, double /*start*/)
{
    if (isWanted_.exchange(false)) {
        sounds_ = true;
        time_ = 0.0;
    }
    for (std::size_t i = 0; i < frames; ++i, time_ += 1.0 / rate_) {
        sounds_ = sounds_ && time_ < kSeconds;
        const double fade =
            std::min({1.0, time_ / kFadeSeconds, (kSeconds - time_) / kFadeSeconds});
        left[i] = right[i] =
            sounds_ ? static_cast<float>(kAmplitude * fade *
                                         std::sin(2.0 * std::numbers::pi * kHertz * time_))
                    : 0.0F;
    }
}

} // namespace velmora
