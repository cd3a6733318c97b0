#include "sound/PipeSound.h"

#include "sound/ALInstrument.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <functional>
#include <numbers>
#include <span>
#include <string>
#include <thread>
#include <utility>

namespace velmora {

namespace {

constexpr double kPipeRate = 48000.0;
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
    Pcm pcm = recorded(static_cast<std::size_t>(3.5 * rate), rate, [hertz](double time) {
        const double level = std::min(time / 0.05, 1.0) * std::exp(std::min(0.0, 2.0 - time));
        return level * (0.5 * turn(hertz * time) + 0.3 * turn(2.0 * hertz * time + 0.1) +
                        0.2 * turn(5.0 * hertz * time + 0.3));
    });
    for (const std::int16_t sample : std::exchange(pcm.samples, {}))
        pcm.floats.push_back(static_cast<float>(sample) / 32768.0F);
    return pcm;
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
        return rendered(*instrument_.source(), static_cast<std::size_t>(seconds * kPipeRate)).left;
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
        PipeSound made = makePipeSound(std::move(recording));
        EXPECT_EQ(made.loop, (Loop{44100, 88200})) << "the longest that the file has";
        for (float& sample : made.release.floats)
            sample *= 0.5F; // as if recorded at another level
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
                static_cast<std::size_t>(kPipeRate * std::ceil(0.004 * hertz) / hertz / 1.03);
            const std::vector<float> before = render(0.1);
            const double heldLevel = level(std::span(before).last(window));
            sample().stop();
            const std::vector<float> after = render(0.5);
            EXPECT_LT(sharpness(std::span(after).first(4800)), 1.15 * sharpness(before));
            for (std::size_t i = 0; i < 4800; i += 20) {
                const double time = static_cast<double>(i + window / 2) / kPipeRate;
                ASSERT_NEAR(level(std::span(after).subspan(i, window)) * std::exp(1.03 * time),
                            heldLevel, 0.1 * heldLevel)
                    << "after " << time << " s";
            }
            instrument_.silence();
            render(0.2);
        }
    }
}

TEST(PipeSound, IsMadeWhateverAFileClaims)
{
    constexpr std::uint32_t kFrames = 9600;
    const auto tone = [](double time) { return turn(440.0 * time); };
    for (const double pitch : {0.0, -1.0, 1e-12, 1e12, std::nan("")}) {
        for (const Loop loop : {Loop{0, 9600}, Loop{0, 4}, Loop{9590, 9600}, Loop{9000, 100},
                                Loop{4000, 9601}, Loop{7, 8000}}) {
            SCOPED_TRACE(testing::Message() << pitch << " Hz, loop from " << loop.begin);
            const PipeSound made =
                makePipeSound({recorded(kFrames, kPipeRate, tone), pitch, {loop}, loop.end / 2});
            const bool isWithin = loop.begin < loop.end && loop.end <= kFrames;
            EXPECT_EQ(made.loop.has_value(), isWithin);
            ASSERT_FALSE(made.attack.samples.empty());
            const Pcm release = made.release.samples.empty() ? made.attack : made.release;
            const ReleaseAlignment::Entry entry =
                ReleaseAlignment(made.attack, pitch, release, pitch).at(loop.end);
            EXPECT_GE(entry.frame, 1.0F);
            EXPECT_LT(entry.frame, release.samples.size());
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
        const double pitch = measuredHertz(std::span(heard).last(48000), kPipeRate, hertz);
        EXPECT_NEAR(cents(pitch, hertz), 0.0, 0.25) << hertz;
        instrument_.silence();
        render(0.1);
    }
}

/// A steady sound, so that the level tells which one is heard.
Pcm steady(double level, double seconds = 10.0)
{
    return recorded(static_cast<std::size_t>(seconds * kPipeRate), kPipeRate,
                    [level](double) { return level; });
}

TEST_F(PipeTest, ChoosesAttacksByVelocityAndInTurn)
{
    const std::array levels{&add(steady(0.1)), &add(steady(0.2)), &add(steady(0.3))};
    sample().addAttack({levels[0], 440.0, 1.0F, 0.0F, 0.4F});
    sample().addAttack({levels[1], 440.0, 1.0F, 0.6F, 1.0F});
    sample().addAttack({levels[2], 440.0, 8.0F, 0.6F, 1.0F});
    float unit = 0.0F;
    std::string heard;
    for (const float velocity : {0.2F, 0.8F, 0.3F, 0.8F, 0.8F, 0.45F, 0.55F}) {
        instrument_.play(kKey, velocity);
        const std::vector<float> sound = render(0.05);
        if (unit == 0.0F)
            unit = sound.back();
        heard += " " + std::to_string(std::lround(sound.back() / unit));
        EXPECT_EQ(instrument_.renderer().voices(), 1U) << "what sounded before has ended";
    }
    EXPECT_EQ(heard, " 1 2 1 24 2 1 24");
}

TEST_F(PipeTest, SoundsMonoAsLoudAsStereo)
{
    Pcm stereo = steady(0.1);
    stereo.channels = 2;
    const std::array sounds{&add(steady(0.1)), &add(stereo)};
    sample().addAttack({sounds[0], 440.0});
    sample().addAttack({sounds[1], 440.0});
    for (int i = 0; i < 2; ++i) {
        instrument_.play(kKey, 1.0F);
        EXPECT_NEAR(render(0.1).back(), 0.5 * 1000.0 / 32768.0, 1e-6);
    }
}

TEST_F(PipeTest, ReleasesByHowLongTheKeyWasHeld)
{
    const Sound& attack = add(steady(0.1), Loop{1000, 20000});
    const Sound& brief = add(steady(0.2, 2.0), {}, &attack);
    const Sound& lasting = add(steady(0.3, 2.0), {}, &attack);
    sample().addAttack({&attack, 440.0, 0.5F});
    sample().addRelease({&lasting, 440.0});
    sample().addRelease({&brief, 440.0, 2.0F, 0.5});
    instrument_.play(kKey, 1.0F);
    const float unit = 2.0F * render(0.4).back();
    instrument_.stop(kKey);
    EXPECT_NEAR(render(1.5).back(), 4.0F * unit, 0.01F * unit) << "does not fade";
    render(0.6);
    EXPECT_EQ(peak(render(0.01)), 0.0F);
    instrument_.play(kKey, 1.0F);
    render(0.6);
    instrument_.stop(kKey);
    EXPECT_NEAR(render(1.5).back(), 3.0F * unit, 0.01F * unit);
    for (int tick = 0; tick < 2 * 60 - 1; ++tick)
        instrument_.fade(0.9);
    EXPECT_TRUE(instrument_.isSounding());
    for (int tick = 0; tick < 3; ++tick)
        instrument_.fade(0.9);
    EXPECT_FALSE(instrument_.isSounding());
}

TEST_F(PipeTest, PlaysPercussionToItsEnd)
{
    sample().addAttack({&add(steady(0.1, 1.0)), 440.0});
    sample().setPercussive();
    instrument_.play(kKey, 1.0F);
    const float unit = render(0.1).back();
    instrument_.stop(kKey);
    EXPECT_NEAR(render(0.85).back(), unit, 0.001F * unit);
    render(0.2);
    EXPECT_EQ(peak(render(0.01)), 0.0F);
}

TEST_F(PipeTest, SwellsWithoutSteps)
{
    sample().addAttack({&add(steady(0.1)), 440.0});
    instrument_.stops()[0].swell = 1;
    instrument_.play(kKey, 1.0F);
    const float unit = render(0.1).back();
    instrument_.setSwell(1, 0.25F);
    instrument_.setSwell(2, 0.0F); // of other stops
    std::vector<float> heard = render(0.3);
    EXPECT_NEAR(heard.back(), 0.25F * unit, 0.001F * unit);
    for (std::size_t i = 1; i < heard.size(); ++i)
        ASSERT_LT(std::fabs(heard[i] - heard[i - 1]), 0.002F * unit) << "at frame " << i;
    instrument_.stop(kKey);
    EXPECT_NEAR(render(1.0 / 60.0).back(), 0.9F * 0.25F * unit, 0.005F * unit);
    instrument_.silence();
    render(0.1);
    instrument_.setSwell(1, 0.5F);
    instrument_.play(kKey, 1.0F);
    EXPECT_NEAR(render(0.001).back(), 0.5F * unit, 0.001F * unit) << "moved in silence";
}

TEST_F(PipeTest, GrowsWhileItSounds)
{
    constexpr int kAdded = 100;
    instrument_.renderer().reserve(kAdded, 1 << 20);
    AudioSource& source = *instrument_.source();
    std::atomic<bool> isDone{false};
    std::jthread player([&] {
        while (!isDone) {
            rendered(source, 128);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    });
    const Pcm sound = steady(0.01, 0.1);
    for (int key = 0; key < kAdded; ++key) {
        const Sound& attack = add(sound, Loop{100, 4800});
        const Sound& release = add(sound, {}, &attack);
        Sample& sample = instrument_.stops()[0].samples[static_cast<std::size_t>(key)];
        sample.addAttack({&attack, 440.0});
        sample.addRelease({&release, 440.0});
        instrument_.source();
        instrument_.play(key, 1.0F);
        if (key % 2 == 1)
            instrument_.stop(key - 1);
    }
    isDone = true;
    player.join();
    rendered(source, 48000);
    EXPECT_EQ(instrument_.renderer().voices(), kAdded / 2U) << "the held keys";
}

} // namespace

} // namespace velmora
