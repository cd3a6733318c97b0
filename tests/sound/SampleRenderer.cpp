#include "audio/SampleRenderer.h"

#include "sound/ALInstrument.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

constexpr double kOutputRate = 48000.0;
constexpr double kBegin = 1000.0; ///< When the first frame is due.

/// A stop of steady samples, so that the level shows what sounds.
class SampleRendererTest : public testing::Test {
protected:
    explicit SampleRendererTest(std::size_t sounds = 1, int stops = 1)
    {
        const Pcm steady{std::vector<std::int16_t>(std::size_t{10} * 48000, 16384), 1, kOutputRate};
        for (int i = 0; i < stops; ++i) {
            InstrumentStop& stop = organ_.appendStop("");
            stop.volume = 1.0F;
            for (std::size_t key = 0; key < kKeys; ++key) {
                auto& sound = organ_.sounds[std::to_string(key % sounds)];
                if (!sound)
                    sound = std::make_unique<Sound>(organ_.renderer(), steady);
                stop.samples[key].setBuffer(*sound, 440.0);
            }
        }
        organ_.source();
    }

    std::vector<float> render(std::size_t frames, std::initializer_list<std::size_t> sizes = {128})
    {
        Stereo sound(frames);
        inBlocks(sound, sizes, [&](float* left, float* right, std::size_t n) {
            organ_.source()->render(left, right, n,
                                    kBegin + static_cast<double>(done_) / kOutputRate);
            done_ += n;
        });
        return sound.left;
    }

    void dueAtFrame(double frame) { organ_.setDue(kBegin + frame / kOutputRate); }

    ALInstrument organ_;
    std::size_t done_ = 0;
};

TEST_F(SampleRendererTest, AppliesEveryEventAtItsFrame)
{
    dueAtFrame(1000);
    organ_.play(60, 1.0F);
    dueAtFrame(3000);
    organ_.stop(60);
    dueAtFrame(500); // sent later, due earlier: by another thread
    organ_.play(61, 1.0F);
    const auto heard = render(4000, {64, 129, 1500});
    const float level = heard[900];
    EXPECT_GT(level, 0.1F);
    EXPECT_EQ(heard[495], 0.0F);
    EXPECT_NEAR(heard[510], level, 0.02F * level) << "the second key";
    EXPECT_NEAR(heard[995], level, 0.02F * level);
    EXPECT_NEAR(heard[1010], 2.0F * level, 0.02F * level) << "both keys";
    EXPECT_NEAR(heard[2990], 2.0F * level, 0.001F * level);
    EXPECT_NEAR(heard[3799], level + 0.9F * level, 0.005F * level)
        << "a sixtieth of a second later";

    organ_.stop(60);
    dueAtFrame(5000);
    organ_.play(62, 1.0F);
    organ_.silence();
    render(500);
    EXPECT_EQ(peak(render(1000)), 0.0F) << "what is due later is forgotten too";

    dueAtFrame(6000);
    organ_.play(60, 1.0F);
    organ_.setDue(0.0); // such as from a window
    organ_.stop(60);
    EXPECT_LT(render(2400).back(), 0.98F * level) << "a key is not released before it is struck";
}

TEST_F(SampleRendererTest, EndsEverythingIfEventsWereLost)
{
    organ_.play(60, 1.0F);
    render(128);
    for (int i = 0; i < 20000; ++i)
        organ_.play(61, 1.0F);
    organ_.stop(60);
    render(480);
    EXPECT_EQ(peak(render(128)), 0.0F);
    organ_.play(62, 1.0F);
    EXPECT_GT(peak(render(128)), 0.1F);
}

TEST(SampleRenderer, StaysInTuneWhateverIsRefusedOrLost)
{
    ALInstrument instrument;
    InstrumentStop& stop = instrument.appendStop("");
    stop.volume = 1.0F;
    auto& sound = instrument.sounds["a"] =
        std::make_unique<Sound>(instrument.renderer(), sine(440.0, 3.0));
    stop.samples[60].setBuffer(*sound, 440.0);
    AudioSource& source = *instrument.source();
    const auto hertz = [&](double rate) {
        source.setRate(rate);
        instrument.play(60, 1.0F);
        rendered(source, 200);
        return measuredHertz(rendered(source, static_cast<std::size_t>(rate)).left, rate, 440.0);
    };
    EXPECT_NEAR(cents(hertz(44100.0), 440.0), 0.0, 0.3);
    EXPECT_NEAR(cents(hertz(4000.0), 440.0), 0.0, 0.3) << "which OpenAL does not support";
    for (int i = 0; i < 20000; ++i)
        instrument.play(60, 1.0F);
    instrument.bend(100.0);
    rendered(source, 1000);
    EXPECT_NEAR(cents(hertz(kOutputRate), 440.0), 100.0, 0.3) << "the wheel was moved just then";
}

TEST_F(SampleRendererTest, RestartsAndEndsWithoutAClick)
{
    organ_.play(60, 1.0F);
    std::vector<float> heard = render(480);
    const float level = heard.back();
    organ_.play(60, 1.0F);
    const auto append = [&](const std::vector<float>& more) {
        heard.insert(heard.end(), more.begin(), more.end());
    };
    append(render(100));
    EXPECT_EQ(organ_.renderer().voices(), 2U) << "the old one still fades";
    append(render(1000));
    EXPECT_NEAR(heard.back(), level, 0.001F * level);
    EXPECT_EQ(organ_.renderer().voices(), 1U);
    organ_.silence();
    append(render(480));
    EXPECT_EQ(heard.back(), 0.0F);
    for (std::size_t i = 481; i < heard.size(); ++i)
        ASSERT_LT(heard[i - 1] - heard[i], 0.006F * level) << "at frame " << i;
}

TEST_F(SampleRendererTest, SavesWorkOnReleasedKeysWhileTheLoadIsHigh)
{
    for (int key = 20; key < 60; ++key)
        organ_.play(key, 1.0F);
    render(128);
    for (int key = 20; key < 40; ++key)
        organ_.stop(key);
    SampleRenderer& renderer = organ_.renderer();
    const auto renderAt = [&](double load, int times) {
        for (int i = 0; i < times; ++i) {
            renderer.setLoad(load);
            render(128);
        }
        return renderer.relief();
    };
    EXPECT_EQ(renderAt(0.7, 2), Relief::None);
    EXPECT_EQ(renderAt(0.8, 1), Relief::CheapTails);
    EXPECT_EQ(renderAt(0.6, 5), Relief::CheapTails);
    EXPECT_EQ(renderer.voices(), 40U);
    EXPECT_EQ(renderAt(0.8, 25), Relief::FewerTails);
    EXPECT_EQ(renderer.voices(), 20U) << "held keys sound on";
    EXPECT_EQ(renderAt(0.4, 1), Relief::None);
}

/// More samples than can sound together on one device.
class OneSoundTest : public SampleRendererTest {
protected:
    OneSoundTest() : SampleRendererTest(1, 4) {}
};

TEST_F(OneSoundTest, EndsTheOldestReleasedVoicesIfThereAreTooMany)
{
    for (int key = 0; key < 50; ++key)
        organ_.play(key, 1.0F);
    for (int round = 0; round < 10; ++round) {
        for (int key = 50; key < 128; ++key) {
            organ_.play(key, 1.0F);
            organ_.stop(key);
        }
        render(16);
        ASSERT_LE(organ_.renderer().voices(), 448U);
        ASSERT_GT(organ_.renderer().voices(), 400U);
    }
    render(48000);
    EXPECT_EQ(organ_.renderer().voices(), 200U) << "held keys sound on";
}

/// Many sounds, which are spread over several devices.
class ManySoundsTest : public SampleRendererTest {
protected:
    ManySoundsTest() : SampleRendererTest(kKeys, 4) {}
};

TEST_F(ManySoundsTest, SoundTogetherOnAllProcessors)
{
    organ_.play(0, 1.0F);
    render(480);
    const float level = render(1)[0];
    for (int key = 1; key < 128; ++key)
        organ_.play(key, 1.0F);
    render(480);
    for (int round = 0; round < 100; ++round) {
        const auto heard = render(128);
        for (const float sample : heard)
            ASSERT_NEAR(sample, 128.0F * level, 0.01F * level);
    }
    EXPECT_EQ(organ_.renderer().voices(), 512U);
    organ_.renderer().setRate(192000.0);
    EXPECT_NEAR(render(480).back(), 128.0F * level, 0.2F * level) << "at another rate";
}

} // namespace

} // namespace velmora
