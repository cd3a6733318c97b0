#include "sound/ALInstrument.h"

#include "base/FormatError.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

constexpr double kRate = 48000.0;
constexpr std::size_t kTick = 800; ///< Frames from one fade to the next.

class ALInstrumentTest : public testing::Test {
protected:
    /// Sets the sample of a key to a sine that was recorded at `hertz`.
    Sample& setSine(std::size_t stop, std::size_t key, double hertz = 440.0)
    {
        auto& sound = instrument_.sounds[std::to_string(hertz)];
        if (!sound)
            sound = std::make_unique<Sound>(instrument_.renderer(), sine(hertz, 2.0));
        Sample& sample = instrument_.stops().at(stop).samples.at(key);
        sample.setBuffer(*sound, hertz);
        return sample;
    }

    /// Lets time pass by a number of fades. Returns the sound of the last one.
    std::vector<float> tick(int times)
    {
        Stereo heard;
        for (int i = 0; i < times; ++i) {
            heard = rendered(*instrument_.source(), kTick);
            instrument_.fade(0.9);
        }
        return heard.left;
    }

    /// Returns how far the pitch of the next second is from `hertz`, in cents.
    double centsOff(double hertz)
    {
        rendered(*instrument_.source(), 2400);
        return cents(measuredHertz(rendered(*instrument_.source(), 45600).left, kRate, hertz),
                     hertz);
    }

    ALInstrument instrument_;
};

TEST_F(ALInstrumentTest, SoundsAKeyInEveryStopThatIsDrawnUntilItHasFaded)
{
    for (const float volume : {0.0F, 0.5F, 1.0F})
        instrument_.appendStop("").volume = volume;
    const Sample* samples[] = {&setSine(0, 60), &setSine(1, 60), &setSine(2, 60)};
    instrument_.play(60, 0.1F);
    const float unit = peak(tick(3)) / 1.5F;
    EXPECT_GT(unit, 0.1F);
    EXPECT_NEAR(peak(tick(37)), 1.5F * unit, 0.001F) << "held";
    EXPECT_EQ(samples[0]->gain(), 0.0) << "not drawn";

    instrument_.stop(60);
    EXPECT_NEAR(peak(tick(20)), 1.5F * unit * std::pow(0.9F, 19.0F), 0.01F * unit);
    instrument_.play(60, 0.1F);
    EXPECT_FALSE(samples[2]->released()) << "struck again";
    EXPECT_NEAR(peak(tick(40)), 1.5F * unit, 0.001F) << "struck again";
    instrument_.stop(60);
    tick(36);
    EXPECT_FALSE(samples[1]->released()) << "the quieter stop has ended";
    EXPECT_TRUE(samples[2]->released());
    EXPECT_NEAR(peak(tick(1)), unit * std::pow(0.9F, 36.0F), 0.002F * unit);
    EXPECT_NEAR(samples[2]->gain(), std::pow(0.9, 37.0), 1e-6);
    tick(1);
    EXPECT_FALSE(samples[2]->released());
    tick(1);
    EXPECT_EQ(peak(tick(1)), 0.0F);
    EXPECT_FALSE(instrument_.isSounding());

    instrument_.setSoft(true);
    instrument_.play(60, 1.0F);
    EXPECT_NEAR(peak(tick(3)), 1.5F * unit * std::pow(10.0F, -0.25F), 0.01F) << "soft: -5 dB";
    instrument_.silence();
    tick(1);
    EXPECT_EQ(peak(tick(1)), 0.0F);
}

TEST_F(ALInstrumentTest, IgnoresStopsAndKeysThatItDoesNotHave)
{
    instrument_.appendStop("");
    instrument_.setVolume(0, 0.5F);
    instrument_.setVolume(1, 0.5F);
    EXPECT_EQ(instrument_.getVolume(0), 1.0F) << "twice what was set";
    EXPECT_EQ(instrument_.getVolume(1), 0.0F) << "no such stop";
    instrument_.play(62, 1.0F); // a key without samples
    instrument_.stop(62);
    instrument_.tune(equal, 62, 62);
    EXPECT_FALSE(instrument_.stops()[0].samples[62].released());
    while (instrument_.numStops() < 4096)
        instrument_.appendStop("");
    EXPECT_THROW(instrument_.appendStop(""), FormatError) << "more than any organ has";
}

TEST_F(ALInstrumentTest, RetunesWhatSoundsAndWhatWillSound)
{
    instrument_.appendStop("").volume = 0.5F;
    setSine(0, 58);
    const Temperament meantone = Temperament::Meantone();
    instrument_.tune(equal, 0, 127);
    instrument_.play(58, 1.0F);
    EXPECT_NEAR(centsOff(equal.getPitch(58)), 0.0, 0.25);
    instrument_.tune(meantone, 58, 58);
    EXPECT_NEAR(centsOff(meantone.getPitch(58)), 0.0, 0.25) << "while it sounds";
    instrument_.bend(150.0);
    instrument_.play(58, 1.0F);
    EXPECT_NEAR(centsOff(meantone.getPitch(58) * std::exp2(0.125)), 0.0, 0.25) << "bent before";
    instrument_.bend(0.0);
    EXPECT_NEAR(centsOff(meantone.getPitch(58)), 0.0, 0.25) << "bent back while it sounds";
    setSine(0, 57, 220.0);
    instrument_.tune(meantone, 57, 58);
    EXPECT_NEAR(220.0 * instrument_.stops()[0].samples[57].factor(), meantone.getPitch(57), 1e-4)
        << "a new sample";
}

TEST_F(ALInstrumentTest, SoundsInTune)
{
    Temperament equally = Temperament::Equal();
    Temperament meantone = Temperament::Meantone();
    DynamicTemperament dynamic;
    dynamic.isomorph(instrument_, 11); // a lower E
    instrument_.appendStop("").volume = 0.5F;
    for (Temperament* temperament : {&equally, &meantone, static_cast<Temperament*>(&dynamic)}) {
        for (unsigned key = 24; key <= 96; key += 5) {
            const double rootPitch = equal.getPitch(key - key % 9); // pipes a sixth apart
            setSine(0, key, rootPitch);
            instrument_.tune(*temperament, 0, 127);
            instrument_.play(static_cast<int>(key), 1.0F);
            const double wanted = temperament->getPitch(key);
            EXPECT_NEAR(centsOff(wanted), 0.0, 0.25 / std::min(1.0, wanted / rootPitch))
                << "key " << key;
            instrument_.silence();
            rendered(*instrument_.source(), 2400);
        }
    }
}

TEST(Sound, MayHaveMoreThan16Bits)
{
    ALInstrument instrument;
    EXPECT_THROW(Sound(instrument.renderer(), Pcm{{1, 2}, 1, 0.0}), FormatError)
        << "without a rate";
    const Sound quiet(instrument.renderer(), Pcm{{}, 1, kRate, std::vector(9600, 0.00001F)});
    EXPECT_EQ(quiet.size(), 4U * 9600U);
    const Sound stereo(instrument.renderer(), Pcm{{1, 2, 3, 4}, 2, 44100.5});
    EXPECT_EQ(stereo.size(), 8U);
    EXPECT_EQ(stereo.frames(), 2U);
    for (int i = 0; i < 60; ++i) { // more sources than OpenAL has by default
        InstrumentStop& stop = instrument.appendStop("");
        for (Sample& key : stop.samples)
            key.setBuffer(quiet, 440.0);
        stop.volume = i == 59 ? 1.0F : 0.0F;
    }
    instrument.play(127, 1.0F);
    EXPECT_GT(peak(rendered(*instrument.source(), 480).left), 0.000005F) << "below 16 bits";
}

} // namespace

} // namespace velmora
