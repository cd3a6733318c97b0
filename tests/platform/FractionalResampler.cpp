#include "platform/FractionalResampler.h"

#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr double kRate = 48000.0;
constexpr double kTurn = 2.0 * std::numbers::pi;
constexpr float kAmplitude = 0.5F;

double stepOf(double pitchCents)
{
    return std::exp2(pitchCents / 1200.0);
}

/// A resampler that is fed a tone; the right channel has it upside down.
class Tone {
public:
    explicit Tone(double hertz) : hertz_(hertz) {}

    Stereo resampled(std::size_t frames, std::initializer_list<std::size_t> sizes = {128})
    {
        Stereo sound(frames);
        inBlocks(sound, sizes, [this](float* left, float* right, std::size_t n) {
            resampler.mix(left, right, n, [this](float* l, float* r) { fill(l, r); });
        });
        return sound;
    }

    FractionalResampler resampler;

private:
    void fill(float* left, float* right)
    {
        for (std::size_t i = 0; i < FractionalResampler::kBlock; ++i, ++frame_) {
            const double angle = kTurn * hertz_ * static_cast<double>(frame_) / kRate;
            left[i] = kAmplitude * static_cast<float>(std::sin(angle));
            right[i] = -left[i];
        }
    }

    double hertz_;
    std::size_t frame_ = 0;
};

/// How loud a tone is in a sound, and all that is not that tone, as fractions of kAmplitude.
std::pair<double, double> toneAndRest(std::span<const float> sound, double hertz)
{
    double ss = 0, sc = 0, cc = 0, sx = 0, cx = 0, xx = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double angle = kTurn * hertz * static_cast<double>(i) / kRate;
        const double s = std::sin(angle), c = std::cos(angle), x = sound[i];
        ss += s * s, sc += s * c, cc += c * c, sx += s * x, cx += c * x, xx += x * x;
    }
    const double determinant = ss * cc - sc * sc;
    const double a = (sx * cc - cx * sc) / determinant, b = (cx * ss - sx * sc) / determinant;
    const double rest = std::max(0.0, xx - a * sx - b * cx) / static_cast<double>(sound.size());
    return {std::hypot(a, b) / kAmplitude, std::sqrt(2.0 * rest) / kAmplitude};
}

} // namespace

TEST(FractionalResampler, CopiesAtStepOne)
{
    Tone tone(1000.0);
    const Stereo out = tone.resampled(5000);
    for (std::size_t i = 0; i < out.left.size(); ++i) {
        const double angle = kTurn * 1000.0 * static_cast<double>(i - FractionalResampler::kDelay);
        const float expected = i < FractionalResampler::kDelay
                                   ? 0.0F
                                   : kAmplitude * static_cast<float>(std::sin(angle / kRate));
        ASSERT_EQ(out.left[i], expected) << i;
        ASSERT_EQ(out.right[i], -expected) << i;
    }
}

TEST(FractionalResampler, ShiftsThePitchAndNothingElseUpTo18Kilohertz)
{
    for (const double shift : {-0.5, -0.123, 0.25, 0.5}) {
        for (const double hertz : {50.0, 440.0, 5000.0, 12000.0, 18000.0}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz by " << shift << " cents");
            Tone tone(hertz);
            tone.resampler.setStep(stepOf(shift));
            const Stereo out = tone.resampled(40000);
            const std::span<const float> steady = std::span(out.left).subspan(1000);
            const double shifted = hertz * stepOf(shift);
            EXPECT_NEAR(cents(measuredHertz(steady, kRate, hertz), shifted), 0.0, 0.001);
            const auto [level, rest] = toneAndRest(steady, shifted);
            EXPECT_NEAR(20.0 * std::log10(level), 0.0, 0.01) << "decibels";
            EXPECT_LT(20.0 * std::log10(rest), -80.0) << "decibels";
        }
    }
}

TEST(FractionalResampler, ChangesTheStepWithoutAClick)
{
    constexpr double kHertz = 1000.0;
    Tone tone(kHertz);
    Stereo out = tone.resampled(1000);
    for (int i = 0; i < 40; ++i) {
        tone.resampler.setStep(
            stepOf(std::array{0.5, 0.0, -0.5, 0.3}[static_cast<std::size_t>(i) % 4]));
        const Stereo more = tone.resampled(317);
        out.left.insert(out.left.end(), more.left.begin(), more.left.end());
    }
    // The curvature of a tone is that of its peaks; a jump or a bend of its line is far more.
    const double curvature = kAmplitude * std::pow(kTurn * kHertz / kRate, 2);
    for (std::size_t i = 102; i < out.left.size(); ++i)
        ASSERT_LT(std::fabs(out.left[i] - 2.0F * out.left[i - 1] + out.left[i - 2]),
                  1.01 * curvature)
            << i;
}

TEST(FractionalResampler, BlockSizesDoNotMatter)
{
    for (const double shift : {0.0, 0.4, -0.4}) {
        const auto withBlocks = [&](std::initializer_list<std::size_t> sizes) {
            Tone tone(440.0);
            tone.resampler.setStep(stepOf(shift));
            return tone.resampled(10000, sizes);
        };
        EXPECT_EQ(withBlocks({1}), withBlocks({128})) << shift;
        EXPECT_EQ(withBlocks({7, 64, 1, 1000}), withBlocks({128})) << shift;
    }
}
