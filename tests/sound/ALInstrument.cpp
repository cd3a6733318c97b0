#include "sound/ALInstrument.h"

#include "audio/OpenALLoopback.h"
#include "base/FormatError.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"

#include <al.h>
#include <gtest/gtest.h>

namespace velmora {

namespace {

float sourceFloat(const Sample& sample, ALenum property)
{
    float value = -1.0F;
    alGetSourcef(sample.source(), property, &value);
    return value;
}

/// Returns the gain at which a sample plays, or -1 if it does not play.
float gainOf(const Sample& sample)
{
    int state = 0;
    alGetSourcei(sample.source(), AL_SOURCE_STATE, &state);
    return state == AL_PLAYING ? sourceFloat(sample, AL_GAIN) : -1.0F;
}

class ALInstrumentTest : public testing::Test {
protected:
    /// Sets the sample of a key to a sine that was recorded at `hertz`.
    Sample& setSine(std::size_t stop, std::size_t key, double hertz = 440.0)
    {
        auto& sound = instrument_.sounds[std::to_string(hertz)];
        if (!sound)
            sound = std::make_unique<Sound>(sine(hertz, 2.0));
        Sample& sample = instrument_.stops().at(stop).samples.at(key);
        sample.setBuffer(*sound, hertz);
        return sample;
    }

    OpenALLoopback loopback_{48000.0};
    ALInstrument instrument_;
};

TEST_F(ALInstrumentTest, SoundsAKeyInEveryStopThatIsDrawnUntilItHasFaded)
{
    for (const float volume : {0.0F, 0.5F, 1.0F})
        instrument_.appendStop("").volume = volume;
    const Sample* samples[] = {&setSine(0, 60), &setSine(1, 60), &setSine(2, 60)};
    const auto expectGains = [&](float half, float full, const char* when) {
        EXPECT_EQ(gainOf(*samples[0]), -1.0F) << when;
        EXPECT_NEAR(gainOf(*samples[1]), half, 1e-6) << when;
        EXPECT_NEAR(gainOf(*samples[2]), full, 1e-6) << when;
        instrument_.play(60, 0.1F);
        EXPECT_EQ(gainOf(*samples[1]), 0.5F) << "struck again: " << when;
        EXPECT_FALSE(samples[2]->released()) << when;
    };
    expectGains(-1.0F, -1.0F, "unplayed");
    for (int i = 0; i < 40; ++i)
        instrument_.fade(0.9);
    expectGains(0.5F, 1.0F, "held");
    instrument_.stop(60);
    for (int i = 0; i < 37; ++i)
        instrument_.fade(0.9);
    expectGains(-1.0F, std::pow(0.9F, 37.0F), "fading, and the quieter stop has ended");

    instrument_.setVolume(0, 0.5F);
    instrument_.setVolume(3, 0.5F);
    EXPECT_EQ(instrument_.getVolume(0), 1.0F) << "twice what was set";
    EXPECT_EQ(instrument_.getVolume(3), 0.0F) << "no such stop";
    instrument_.play(62, 1.0F); // a key without samples
    instrument_.stop(62);
    instrument_.tune(equal, 62, 62);
    EXPECT_FALSE(instrument_.stops()[0].samples[62].released());
    EXPECT_EQ(alGetError(), AL_NO_ERROR);

    while (instrument_.numStops() < 4096)
        instrument_.appendStop("");
    EXPECT_THROW(instrument_.appendStop(""), FormatError) << "more than any organ has";
}

TEST_F(ALInstrumentTest, RetunesOnlyKeysWhosePitchHasChanged)
{
    instrument_.appendStop("");
    const Sample* samples[] = {&setSine(0, 57), &setSine(0, 58)};
    const Temperament meantone = Temperament::Meantone();
    const auto expectHertz = [&](double first, double second) {
        EXPECT_NEAR(440.0 * sourceFloat(*samples[0], AL_PITCH), first, 1e-4);
        EXPECT_NEAR(440.0 * sourceFloat(*samples[1], AL_PITCH), second, 1e-4);
    };
    instrument_.tune(equal, 0, 127);
    expectHertz(440.0, equal.getPitch(58));
    instrument_.tune(meantone, 58, 58);
    expectHertz(440.0, meantone.getPitch(58));
    alSourcef(samples[1]->source(), AL_PITCH, 3.0F);
    setSine(0, 57, 220.0); // must be tuned; OpenAL is not told the other pitch again
    instrument_.tune(meantone, 57, 58);
    expectHertz(2.0 * meantone.getPitch(57), 1320.0);
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
            rendered(loopback_, 2400);
            const Stereo heard = rendered(loopback_, 45600);
            const double hertz = measuredHertz(heard.left, 48000.0, wanted);
            EXPECT_NEAR(cents(hertz, wanted), 0.0, 0.25 / std::min(1.0, wanted / rootPitch))
                << "key " << key;
            instrument_.stop(static_cast<int>(key));
            instrument_.fade(0.0);
            rendered(loopback_, 2400);
        }
    }
}

TEST(Sound, IsFreedTogetherWithTheSourcesOfALargeOrgan)
{
    EXPECT_THROW(Sound(sine(440.0, 0.1)), FormatError) << "without OpenAL";
    const OpenALLoopback loopback(48000.0);
    EXPECT_THROW(Sound(Pcm{{1, 2}, 1, 0.0}), FormatError) << "without a rate";
    std::vector<unsigned> sources;
    unsigned buffer = 0;
    {
        ALInstrument organ;
        auto& sound = organ.sounds["a"] = std::make_unique<Sound>(Pcm{{1, 2, 3, 4}, 2, 44100.5});
        buffer = sound->buffer();
        for (int i = 0; i < 60; ++i) {
            for (Sample& key : organ.appendStop("").samples) {
                key.setBuffer(*sound, 440.0);
                sources.push_back(key.source());
            }
        }
        EXPECT_TRUE(std::ranges::all_of(sources, alIsSource));
    }
    EXPECT_TRUE(std::ranges::none_of(sources, alIsSource));
    EXPECT_FALSE(alIsBuffer(buffer));
}

} // namespace

} // namespace velmora
