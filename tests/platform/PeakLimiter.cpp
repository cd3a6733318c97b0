#include "platform/PeakLimiter.h"

#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

/// Quiet enough to pass unchanged but for the gain that the other channel asks for.
constexpr float kProbe = 0.01F;

/// A sample, once for each frame.
using Signal = std::function<float(std::size_t frame)>;

const Signal kNoise = [random = std::mt19937(1)](std::size_t) mutable {
    return std::uniform_real_distribution(-0.96F, 0.96F)(random);
};

/// `left` on one side, the probe on the other.
Stereo signal(std::size_t frames, const Signal& left)
{
    Stereo sound(frames);
    for (std::size_t i = 0; i < frames; ++i)
        sound.left[i] = left(i);
    std::ranges::fill(sound.right, kProbe);
    return sound;
}

Stereo limited(Stereo sound, double rate, std::initializer_list<std::size_t> sizes = {128})
{
    PeakLimiter limiter(rate);
    inBlocks(sound, sizes, [&](float* l, float* r, std::size_t n) { limiter.process(l, r, n); });
    return sound;
}

} // namespace

TEST(PeakLimiter, BringsEveryPeakToTheCeilingByAGainWithoutSteps)
{
    const std::pair<const char*, Signal> signals[] = {
        {"impulses", [](std::size_t i) { return i % 997 == 500 ? -30.0F : 0.3F; }},
        {"crowding ones",
         [](std::size_t i) { return i % 23 == 0 ? static_cast<float>(1 + i % 7) : 0.0F; }},
        {"noise", [](std::size_t i) { return 10.0F * kNoise(i); }}};
    for (const double rate : {8000.0, 48000.0, 192000.0}) {
        const std::size_t delay = PeakLimiter(rate).delay();
        for (const auto& [name, left] : signals) {
            SCOPED_TRACE(testing::Message() << name << " at " << rate << " Hz");
            const Stereo in = signal(20000, left);
            const Stereo out = limited(in, rate);
            EXPECT_EQ(limited(in, rate, {7, 64, 1, 1000}), out) << "in other blocks";
            EXPECT_LE(peak(out.left), PeakLimiter::kCeiling);
            EXPECT_GT(peak(out.left), 0.99F * PeakLimiter::kCeiling);
            for (std::size_t i = delay + 1; i < in.left.size(); ++i) {
                const float gain = out.right[i] / kProbe;
                ASSERT_LT(std::fabs(gain - out.right[i - 1] / kProbe),
                          1.0F / static_cast<float>(delay));
                ASSERT_NEAR(gain * in.left[i - delay], out.left[i], 1e-5) << "the gain does it all";
            }
        }
    }
}

TEST(PeakLimiter, OnlyDelaysWhatIsBelowTheCeilingAlsoOnceItHasRecovered)
{
    constexpr std::size_t kDelay = 71, kBurst = 10000, kRecovered = kBurst + 48000; // 1.5 ms
    Stereo in = signal(80000, kNoise);
    std::fill_n(in.left.begin() + kBurst, 300, 17.3F);
    const Stereo out = limited(in, 48000.0);
    for (std::size_t i = 0; i + kDelay < in.left.size(); ++i) {
        if (i == kBurst - kDelay)
            i = kRecovered;
        ASSERT_EQ(out.left[i + kDelay], in.left[i]) << i;
    }
    // The time constant of the recovery is 50 ms.
    const double atOnce = out.right[kBurst + 299 + kDelay] / kProbe;
    const double later = out.right[kBurst + 299 + kDelay + 2400] / kProbe;
    EXPECT_NEAR((1.0 - later) / (1.0 - atOnce), std::exp(-1.0), 0.02);
}
