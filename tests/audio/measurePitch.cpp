#include "audio/measurePitch.h"

#include "audio/Pcm.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace velmora {

namespace {

constexpr double kRecordedRate = 44100.0;

/// One second of a sound, whose samples are a function of the seconds.
std::vector<float> oneSecond(const std::function<double(double)>& sample)
{
    std::vector<float> sound;
    for (int i = 0; i < 44100; ++i)
        sound.push_back(static_cast<float>(sample(i / kRecordedRate)));
    return sound;
}

double wave(double hertz, double seconds)
{
    return std::sin(2.0 * std::numbers::pi * hertz * seconds);
}

} // namespace

TEST(MeasurePitch, FollowsThePartialsOfHeldAndDyingSounds)
{
    for (const double hertz : {30.0, 261.6, 4000.0}) {
        for (const double off : {-45.0, 0.0, 3.3, 45.0}) {
            const double actual = hertz * std::exp2(off / 1200.0);
            const std::function<double(double)> sounds[] = {
                [&](double t) { return 0.5 * wave(actual, t); },
                [&](double t) { return std::exp(-8.0 * t) * wave(actual, t); },
                [&](double t) { return 0.01 * wave(actual, t) + 0.5 * wave(2.0 * actual, t); },
                [&](double t) { return wave(actual, t) + 0.3 * wave(3.3 * actual, t); }};
            for (const auto& sound : sounds) {
                const auto pitch = measurePitch(oneSecond(sound), kRecordedRate, hertz);
                ASSERT_TRUE(pitch);
                EXPECT_NEAR(cents(pitch->hertz, actual), 0.0, 0.02)
                    << hertz << " Hz, sound " << &sound - sounds;
                EXPECT_LT(pitch->swing, 0.5);
            }
        }
    }
}

TEST(MeasurePitch, AveragesVibratoAndNoticesBeats)
{
    const auto vibrato =
        measurePitch(oneSecond([](double t) { return wave(440.0, t + 2e-4 * wave(6.0, t)); }),
                     kRecordedRate, 442.0);
    EXPECT_NEAR(cents(vibrato->hertz, 440.0), 0.0, 0.5);
    EXPECT_LT(vibrato->swing, 1.0);
    const auto beats =
        measurePitch(oneSecond([](double t) { return wave(439.0, t) + 0.8 * wave(442.0, t); }),
                     kRecordedRate, 440.0);
    EXPECT_GT(beats->swing, 2.2);
}

TEST(MeasurePitch, HearsTheMeanOfWhatDriftsAndOfSharpPartials)
{
    // 10 cents sharp for most of each half second and 40 cents flat for the rest of it.
    double phase = 0.0;
    const auto drifting = oneSecond([&](double t) {
        phase += 440.0 * std::exp2((std::fmod(t, 0.5) < 0.4 ? 10.0 : -40.0) / 1200.0);
        return wave(phase, 1.0 / kRecordedRate);
    });
    EXPECT_NEAR(cents(measurePitch(drifting, kRecordedRate, 440.0)->hertz, 440.0), 0.0, 1.5);

    const auto sharp = [](double t) {
        return wave(440.0, t) + wave(880.0 * std::exp2(6.0 / 1200.0), t) +
               0.5 * wave(1320.0 * std::exp2(18.0 / 1200.0), t);
    };
    EXPECT_NEAR(cents(measurePitch(oneSecond(sharp), kRecordedRate, 440.0)->hertz, 440.0), 6.0,
                0.3);
}

TEST(MeasurePitch, RefusesWhatHasNoSuchPitch)
{
    EXPECT_FALSE(measurePitch(oneSecond([](double) { return 0.0; }), kRecordedRate, 440.0));
    EXPECT_FALSE(
        measurePitch(oneSecond([](double t) { return wave(460.0, t); }), kRecordedRate, 440.0));
    EXPECT_FALSE(measurePitch(std::vector<float>(100, 0.5F), kRecordedRate, 440.0));

    Pcm recording{{}, 2, kRecordedRate};
    for (const float sample : oneSecond([](double t) { return wave(t < 0.15 ? 300.0 : 441.0, t); }))
        recording.samples.insert(recording.samples.end(),
                                 {static_cast<std::int16_t>(20000.0F * sample), 0});
    EXPECT_NEAR(cents(measurePitch(recording, 440.0)->hertz, 441.0), 0.0, 0.02)
        << "the left channel behind the attack";
}

} // namespace velmora
