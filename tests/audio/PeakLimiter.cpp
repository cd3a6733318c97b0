#include "audio/PeakLimiter.h"

#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {

namespace {

/// Quiet enough that only the other channel determines the gain.
constexpr float kProbe = 0.01F;

/// Noise with occasional impulses on the left, the probe on the right.
Stereo noise(std::size_t frames, float level, float impulse)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<float> distribution(-level, level);
    Stereo sound(frames);
    for (std::size_t i = 0; i < frames; ++i)
        sound.left[i] = i % 997 == 500 ? impulse : distribution(random);
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

TEST(PeakLimiter, LimitsPeaksToTheCeilingWithASmoothGain)
{
    for (const double rate : {8000.0, 48000.0, 192000.0}) {
        const std::size_t delay = PeakLimiter(rate).delay();
        for (const auto& in : {noise(20000, 0.3F, -30.0F), noise(20000, 10.0F, 15.0F)}) {
            SCOPED_TRACE(testing::Message() << in.left[500] << " at " << rate << " Hz");
            const Stereo out = limited(in, rate);
            Stereo swapped = in;
            std::swap(swapped.left, swapped.right);
            EXPECT_EQ(limited(swapped, rate, {7, 64, 1, 1000}).right, out.left)
                << "with other block sizes";
            EXPECT_LE(peak(out.left), PeakLimiter::kCeiling);
            EXPECT_GT(peak(out.left), 0.99F * PeakLimiter::kCeiling);
            for (std::size_t i = delay + 1; i < in.left.size(); ++i) {
                const float gain = out.right[i] / kProbe;
                ASSERT_LT(std::fabs(gain - out.right[i - 1] / kProbe),
                          1.0F / static_cast<float>(delay));
                ASSERT_NEAR(gain * in.left[i - delay], out.left[i], 1e-5)
                    << "only the gain changes the sound";
            }
        }
    }
}

TEST(PeakLimiter, OnlyDelaysQuietSoundEvenAfterRecovering)
{
    constexpr std::size_t kDelay = 71, kBurst = 10000, kRecovered = kBurst + 48000; // 1.5 ms
    Stereo in = noise(80000, 0.96F, -0.96F);
    std::fill_n(in.left.begin() + kBurst, 300, 17.3F);
    const Stereo out = limited(in, 48000.0);
    for (std::size_t i = 0; i + kDelay < in.left.size(); ++i) {
        if (i == kBurst - kDelay)
            i = kRecovered;
        ASSERT_EQ(out.left[i + kDelay], in.left[i]) << i;
    }
    // The gain recovers with a time constant of 50 ms.
    const double atOnce = out.right[kBurst + 299 + kDelay] / kProbe;
    const double later = out.right[kBurst + 299 + kDelay + 2400] / kProbe;
    EXPECT_NEAR((1.0 - later) / (1.0 - atOnce), std::exp(-1.0), 0.02);
}

} // namespace velmora
