#include "audio/FractionalResampler.h"

#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <numbers>

namespace velmora {

namespace {

/// A full-scale tone, sampled at 48000 Hz.
float tone(double hertz, double frame)
{
    return static_cast<float>(std::sin(2.0 * std::numbers::pi * hertz * frame / 48000.0));
}

/// The resampled tone; the right channel is inverted.
Stereo resampled(double hertz, double step)
{
    FractionalResampler resampler;
    resampler.setStep(step);
    double frame = 0.0;
    const auto source = [&](float* left, float* right) {
        for (std::size_t i = 0; i < FractionalResampler::kBlock; ++i, ++frame) {
            left[i] = tone(hertz, frame);
            right[i] = -left[i];
        }
    };
    Stereo sound(40000);
    inBlocks(sound, {128, 7, 64, 1, 1000},
             [&](float* l, float* r, std::size_t n) { resampler.mix(l, r, n, source); });
    return sound;
}

} // namespace

TEST(FractionalResampler, ChangesOnlyThePitchUpTo18Kilohertz)
{
    for (const double shift : {-0.5, -0.123, 0.0, 0.25, 0.5}) {
        const double step = std::exp2(shift / 1200.0), tolerance = shift == 0.0 ? 0.0 : 1.5e-4;
        for (const double hertz : {50.0, 440.0, 5000.0, 12000.0, 18000.0}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz by " << shift << " cents");
            const Stereo out = resampled(hertz, step);
            for (std::size_t i = FractionalResampler::kTaps; i < out.left.size(); ++i) {
                const double position = static_cast<double>(i) * step - FractionalResampler::kDelay;
                ASSERT_NEAR(out.left[i], tone(hertz, position), tolerance) << i;
                ASSERT_EQ(out.right[i], -out.left[i]) << i;
            }
        }
    }
}

} // namespace velmora
