#include "platform/PeakLimiter.h"

#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace {

/// Quiet enough to pass unchanged but for the gain that the other channel asks for.
constexpr float kProbe = 0.01F;

using Signal = std::function<float(std::size_t frame)>;

Signal noise(float amplitude)
{
    return [random = std::mt19937(1), amplitude](std::size_t) mutable {
        return std::uniform_real_distribution(-amplitude, amplitude)(random);
    };
}

/// `left` on one side, the probe on the other.
Stereo signal(std::size_t frames, const Signal& left)
{
    Stereo sound(frames);
    for (std::size_t i = 0; i < frames; ++i)
        sound.left[i] = left(i);
    std::fill(sound.right.begin(), sound.right.end(), kProbe);
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
    // Impulses; crowding ones; bursts; noise at +20 dB; a rising tone.
    const Signal signals[] = {
        [](std::size_t i) { return i % 997 == 500 ? -30.0F : 0.3F; },
        [](std::size_t i) { return i % 23 == 0 ? static_cast<float>(1 + i % 7) : 0.0F; },
        [](std::size_t i) { return i / 700 % 2 == 0 ? 0.0F
                                   : i % 2 == 0     ? 4.0F
                                                    : -4.0F; },
        noise(10.0F),
        [](std::size_t i) {
            const auto time = static_cast<float>(i);
            return std::sin(0.05F * time) * 1e-3F * time;
        }};
    for (const double rate : {8000.0, 44100.0, 48000.0, 192000.0}) {
        const std::size_t delay = PeakLimiter(rate).delay();
        for (const Signal& left : signals) {
            SCOPED_TRACE(testing::Message()
                         << "signal " << &left - signals << " at " << rate << " Hz");
            const Stereo in = signal(20000, left);
            const Stereo out = limited(in, rate);
            EXPECT_LE(peak(out.left), PeakLimiter::kCeiling);
            EXPECT_GT(peak(out.left), 0.99F * PeakLimiter::kCeiling) << "no lower than needed";
            double greatestStep = 0.0, greatestClipping = 0.0;
            float last = out.right[delay];
            for (std::size_t i = delay + 1; i < in.left.size(); ++i) {
                greatestStep =
                    std::max(greatestStep, std::fabs(static_cast<double>(out.right[i] - last)));
                last = out.right[i];
                const auto gain = static_cast<double>(out.right[i] / kProbe);
                greatestClipping =
                    std::max(greatestClipping, std::fabs(gain * in.left[i - delay] -
                                                         static_cast<double>(out.left[i])));
            }
            EXPECT_LT(greatestStep / kProbe, 1.0 / static_cast<double>(delay));
            EXPECT_LT(greatestClipping, 1e-5) << "the gain does it all";
        }
    }
}

TEST(PeakLimiter, OnlyDelaysWhatIsBelowTheCeilingAlsoOnceItHasRecovered)
{
    constexpr double kRate = 48000.0;
    constexpr std::size_t kBurst = 10000, kRecovered = kBurst + 48000;
    Stereo in = signal(80000, noise(0.96F));
    std::fill_n(in.left.begin() + kBurst, 300, 17.3F);
    const Stereo out = limited(in, kRate);
    const std::size_t delay = PeakLimiter(kRate).delay();
    EXPECT_EQ(delay, 71U) << "1.5 ms";
    for (std::size_t i = 0; i + delay < in.left.size(); ++i) {
        if (i == kBurst - delay)
            i = kRecovered;
        ASSERT_EQ(out.left[i + delay], in.left[i]) << i;
    }
    // The time constant of the recovery is 50 ms.
    const double atOnce = out.right[kBurst + 299 + delay] / kProbe;
    const double later = out.right[kBurst + 299 + delay + 2400] / kProbe;
    EXPECT_NEAR((1.0 - later) / (1.0 - atOnce), std::exp(-1.0), 0.02);
}

TEST(PeakLimiter, BlockSizesDoNotMatter)
{
    const Stereo in = signal(10000, noise(2.0F));
    const Stereo out = limited(in, 48000.0);
    EXPECT_EQ(limited(in, 48000.0, {1}), out);
    EXPECT_EQ(limited(in, 48000.0, {7, 64, 1, 1000}), out);
}
