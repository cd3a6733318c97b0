#include "sound/PipeSound.h"

#include "sound/ALInstrument.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <span>

namespace velmora {

namespace {

constexpr double kRate = 48000.0;
constexpr int kKey = 60;

double turn(double turns)
{
    return std::sin(2.0 * std::numbers::pi * turns);
}

/// A recording of so many frames, from a function of the time in seconds.
Pcm recorded(std::size_t frames, double rate, const std::function<double(double)>& wave)
{
    Pcm pcm{{}, 1, rate};
    for (std::size_t i = 0; i < frames; ++i)
        pcm.samples.push_back(
            static_cast<std::int16_t>(std::lround(10000.0 * wave(static_cast<double>(i) / rate))));
    return pcm;
}

/// A pipe that speaks for 50 ms, sounds until two seconds have passed, and then rings for another.
Pcm pipe(double hertz, double rate)
{
    return recorded(static_cast<std::size_t>(3.5 * rate), rate, [hertz](double time) {
        const double level = std::min(time / 0.05, 1.0) * std::exp(std::min(0.0, 2.0 - time));
        return level * (0.5 * turn(hertz * time) + 0.3 * turn(2.0 * hertz * time + 0.1) +
                        0.2 * turn(5.0 * hertz * time + 0.3));
    });
}

double level(std::span<const float> sound)
{
    double sum = 0.0;
    for (const float sample : sound)
        sum += sample * sample;
    return std::sqrt(sum / static_cast<double>(sound.size()));
}

/// Returns the sharpest bend of a sound.
double sharpness(std::span<const float> sound)
{
    double sharpest = 0.0;
    for (std::size_t i = 2; i < sound.size(); ++i)
        sharpest =
            std::max<double>(sharpest, std::fabs(sound[i] - 2.0F * sound[i - 1] + sound[i - 2]));
    return sharpest;
}

/// An instrument with one key.
class PipeTest : public testing::Test {
protected:
    PipeTest() { instrument_.appendStop("").volume = 0.5F; }

    const Sound& add(const Pcm& pcm, std::optional<Loop> loop = {}, const Sound* beside = nullptr)
    {
        auto& sound = instrument_.sounds[std::to_string(instrument_.sounds.size())];
        sound = std::make_unique<Sound>(instrument_.renderer(), pcm, loop, beside);
        return *sound;
    }

    Sample& sample() { return instrument_.stops()[0].samples[kKey]; }

    std::vector<float> render(double seconds)
    {
        return rendered(*instrument_.source(), static_cast<std::size_t>(seconds * kRate)).left;
    }

    ALInstrument instrument_;
};

TEST_F(PipeTest, ReleasesInPhaseAndAtTheLevelOfTheNote)
{
    constexpr double kRecordedRate = 44100.0;
    constexpr double kClaimed = 1.01; // a pitch that is not quite that of the recording
    for (const double hertz : {33.0, 110.0, 523.0, 2093.0, 4186.0}) {
        PipeRecording recording{pipe(hertz, kRecordedRate), hertz * kClaimed};
        recording.loops = {{44100, 88200}, {44100, 66150}, {66150, 99999999}};
        const PipeSound made = makePipeSound(std::move(recording));
        EXPECT_EQ(made.loop, (Loop{44100, 88200})) << "the longest that the file has";
        const auto alignment = std::make_shared<ReleaseAlignment>(made.attack, hertz * kClaimed,
                                                                  made.release, hertz * kClaimed);
        const Sound& attack = add(made.attack, made.loop);
        const Sound& release = add(made.release, {}, &attack);
        sample() = Sample();
        sample().addAttack({&attack, hertz});
        sample().addRelease({&release, hertz, 1.0F, 9.0, {alignment}});
        sample().tune(hertz * 1.03);
        for (const double held : {0.02, 0.3, 1.1, 2.237, 3.374, 10.0}) {
            SCOPED_TRACE(testing::Message() << hertz << " Hz held for " << held << " s");
            sample().play(0.5F);
            render(held);
            const auto window =
                static_cast<std::size_t>(kRate * std::ceil(0.004 * hertz) / hertz / 1.03);
            const std::vector<float> before = render(0.1);
            const double heldLevel = level(std::span(before).last(window));
            sample().stop();
            const std::vector<float> after = render(0.5);
            EXPECT_LT(sharpness(std::span(after).first(4800)), 1.15 * sharpness(before));
            for (std::size_t i = 0; i < 4800; i += 20) {
                const double time = static_cast<double>(i + window / 2) / kRate;
                ASSERT_NEAR(level(std::span(after).subspan(i, window)) * std::exp(1.03 * time),
                            heldLevel, 0.1 * heldLevel)
                    << "after " << time << " s";
            }
            instrument_.silence();
            render(0.2);
        }
    }
}

TEST_F(PipeTest, LoopsWithoutAClickAndInTune)
{
    // 4410 frames are 44 periods of the first tone, and half a period too many of the second.
    for (const double hertz : {440.0, 445.0}) {
        PipeRecording recording{
            recorded(30000, 44100.0, [hertz](double time) { return turn(hertz * time); }), hertz};
        recording.loops = {{20000, 24410}};
        const PipeSound made = makePipeSound(std::move(recording));
        EXPECT_EQ(made.attack.size(), made.loop->end) << "what follows is not held twice";
        const Sound& sound = add(made.attack, made.loop);
        sample() = Sample();
        sample().addAttack({&sound, hertz});
        sample().play(0.5F);
        const std::vector<float> heard = render(2.0);
        EXPECT_LT(sharpness(std::span(heard).subspan(24000)),
                  1.1 * sharpness(std::span(heard).subspan(4800, 9600)))
            << hertz;
        const double pitch = measuredHertz(std::span(heard).last(48000), kRate, hertz);
        EXPECT_NEAR(cents(pitch, hertz), 0.0, 0.25) << hertz;
        instrument_.silence();
        render(0.1);
    }
}

} // namespace

} // namespace velmora
