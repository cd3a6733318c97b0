#include "platform/FractionalResampler.h"

#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

constexpr double kRate = 48000.0;

double angle(double hertz, std::size_t frame)
{
    return 2.0 * std::numbers::pi * hertz * static_cast<double>(frame) / kRate;
}

/// A tone of full scale that goes through a resampler; the right channel has it upside down.
Stereo resampled(double hertz, double step, std::size_t frames,
                 std::initializer_list<std::size_t> sizes = {128})
{
    FractionalResampler resampler;
    resampler.setStep(step);
    std::size_t frame = 0;
    const auto tone = [&](float* left, float* right) {
        for (std::size_t i = 0; i < FractionalResampler::kBlock; ++i, ++frame) {
            left[i] = static_cast<float>(std::sin(angle(hertz, frame)));
            right[i] = -left[i];
        }
    };
    Stereo sound(frames);
    inBlocks(sound, sizes,
             [&](float* l, float* r, std::size_t n) { resampler.mix(l, r, n, tone); });
    return sound;
}

/// How loud a tone of that pitch is in a sound, and all that is not that tone.
std::pair<double, double> toneAndRest(std::span<const float> sound, double hertz)
{
    double ss = 0, sc = 0, cc = 0, sx = 0, cx = 0, xx = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double s = std::sin(angle(hertz, i)), c = std::cos(angle(hertz, i)), x = sound[i];
        ss += s * s, sc += s * c, cc += c * c, sx += s * x, cx += c * x, xx += x * x;
    }
    const double determinant = ss * cc - sc * sc;
    const double a = (sx * cc - cx * sc) / determinant, b = (cx * ss - sx * sc) / determinant;
    const double rest = std::max(0.0, xx - a * sx - b * cx) / static_cast<double>(sound.size());
    return {std::hypot(a, b), std::sqrt(2.0 * rest)};
}

} // namespace

TEST(FractionalResampler, CopiesAtStepOne)
{
    const Stereo out = resampled(1000.0, 1.0, 5000);
    for (std::size_t i = 0; i < out.left.size(); ++i) {
        const std::size_t delay = FractionalResampler::kDelay;
        const double expected = i < delay ? 0.0 : std::sin(angle(1000.0, i - delay));
        ASSERT_EQ(out.left[i], static_cast<float>(expected)) << i;
        ASSERT_EQ(out.right[i], -out.left[i]) << i;
    }
}

TEST(FractionalResampler, ShiftsThePitchAndNothingElseUpTo18Kilohertz)
{
    for (const double shift : {-0.5, -0.123, 0.25, 0.5}) {
        const double step = std::exp2(shift / 1200.0);
        for (const double hertz : {50.0, 440.0, 5000.0, 12000.0, 18000.0}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz by " << shift << " cents");
            const Stereo out = resampled(hertz, step, 40000);
            const std::span<const float> steady = std::span(out.left).subspan(1000);
            EXPECT_NEAR(cents(measuredHertz(steady, kRate, hertz), hertz), shift, 0.001);
            const auto [level, rest] = toneAndRest(steady, hertz * step);
            EXPECT_NEAR(level, 1.0, 0.001);
            EXPECT_LT(rest, 1e-4);
        }
        EXPECT_EQ(resampled(440.0, step, 10000, {7, 64, 1, 1000}), resampled(440.0, step, 10000));
    }
}
