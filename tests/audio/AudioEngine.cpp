#include "audio/AudioEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace velmora {

namespace {

constexpr double kEngineRate = 48000.0;

/// Writes the moment of each frame, in seconds, or a constant.
class Ramp : public AudioSource {
public:
    void render(float* left, float* right, std::size_t frames, double start) override
    {
        for (std::size_t i = 0; i < frames; ++i)
            left[i] = right[i] =
                level + (showsTime
                             ? static_cast<float>(start + static_cast<double>(i) / kEngineRate)
                             : 0.0F);
    }

    void setRate(double newRate) override { rate = newRate; }
    void setLoad(double /*load*/) override { ++loads; }

    float level = 0.0F;
    bool showsTime = false;
    double rate = 0.0;
    int loads = 0;
};

} // namespace

TEST(AudioEngine, RendersLiveSoundOnePeriodLate)
{
    AudioEngine engine(kEngineRate);
    Ramp ramp;
    ramp.showsTime = true;
    engine.add(ramp);
    std::vector<float> left(3000), right(3000);
    const double start = 0.25;
    engine.render(left.data(), right.data(), left.size(), start); // longer than an inner block
    const std::size_t delay = PeakLimiter(kEngineRate).delay();
    for (std::size_t i = delay; i < left.size(); ++i)
        ASSERT_NEAR(left[i], start + (static_cast<double>(i - delay) - 3000.0) / kEngineRate, 1e-6)
            << i;
    EXPECT_EQ(ramp.loads, 1) << "work is saved once in a period";
}

TEST(AudioEngine, MixesItsSourcesBelowTheLimit)
{
    AudioEngine engine(44100.0);
    Ramp first, second;
    first.level = 0.5F;
    second.level = 0.25F;
    engine.add(first);
    engine.add(second);
    engine.setRate(kEngineRate);
    EXPECT_EQ(first.rate, kEngineRate);
    std::vector<float> left(4800), right(4800);
    const auto level = [&] {
        for (int i = 0; i < 20; ++i) // the limiter recovers
            engine.render(left.data(), right.data(), left.size(), AudioSource::kOffline);
        return right.back();
    };
    EXPECT_FLOAT_EQ(level(), 0.75F);
    EXPECT_FLOAT_EQ(engine.takePeaks()[1], 0.75F);
    engine.setVolume(0.5F);
    EXPECT_FLOAT_EQ(level(), 0.375F);
    first.level = 8.0F;
    EXPECT_LE(level(), 1.0F);
    engine.remove(first);
    EXPECT_FLOAT_EQ(level(), 0.125F);
    std::vector<Ramp> many(1000);
    for (Ramp& one : many) {
        one.level = 0.0005F;
        engine.add(one);
    }
    EXPECT_NEAR(level(), 0.375F, 1e-5F);
}

TEST(AudioEngine, NoLongerUsesARemovedSource)
{
    AudioEngine engine(kEngineRate);
    const std::jthread audio([&](const std::stop_token& stop) {
        std::vector<float> left(64), right(64);
        while (!stop.stop_requested())
            engine.render(left.data(), right.data(), left.size(), 1.0);
    });
    for (int i = 0; i < 1000; ++i) {
        Ramp ramp;
        engine.add(ramp);
        engine.remove(ramp);
        ramp.level = 1.0F; // a race if it is still rendered
    }
}

} // namespace velmora
