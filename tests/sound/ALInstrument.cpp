#include "sound/ALInstrument.h"

#include "base/FormatError.h"
#include "platform/OpenALLoopback.h"
#include "support/Pitch.h"
#include "support/Sine.h"
#include "support/Stereo.h"
#include "tuning/DynamicTemperament.h"

#include <al.h>
#include <gtest/gtest.h>

#include <set>

namespace {

constexpr double kRate = 48000.0;

float sourceFloat(unsigned source, ALenum property)
{
    float value = -1.0F;
    alGetSourcef(source, property, &value);
    return value;
}

bool isPlaying(unsigned source)
{
    int state = 0;
    alGetSourcei(source, AL_SOURCE_STATE, &state);
    return state == AL_PLAYING;
}

class ALInstrumentTest : public testing::Test {
protected:
    const Sound& sound(double hertz)
    {
        auto& sound = instrument_.sounds[std::to_string(hertz)];
        if (!sound)
            sound = std::make_unique<Sound>(sine(hertz, 2.0));
        return *sound;
    }

    Sample& sample(std::size_t stop, std::size_t key)
    {
        return instrument_.stops().at(stop).samples.at(key);
    }

    OpenALLoopback loopback_{kRate};
    ALInstrument instrument_;
};

TEST_F(ALInstrumentTest, SoundsAKeyInEveryStopThatIsDrawn)
{
    const Sound& a = sound(440.0);
    for (const float volume : {0.0F, 0.5F, 0.25F}) {
        instrument_.appendStop("").volume = volume;
        instrument_.stops().back().samples[60].setBuffer(a, 440.0);
    }
    EXPECT_FLOAT_EQ(sourceFloat(sample(0, 60).source(), AL_GAIN), 0.4F) << "until it is played";
    instrument_.play(60, 0.1F);
    EXPECT_FALSE(isPlaying(sample(0, 60).source())) << "its volume is 0";
    EXPECT_TRUE(isPlaying(sample(1, 60).source()) && isPlaying(sample(2, 60).source()));
    EXPECT_FLOAT_EQ(sourceFloat(sample(1, 60).source(), AL_GAIN), 0.5F) << "whatever the velocity";
    EXPECT_FLOAT_EQ(sourceFloat(sample(2, 60).source(), AL_GAIN), 0.25F);

    instrument_.setVolume(0, 0.5F);
    EXPECT_FLOAT_EQ(instrument_.getVolume(0), 1.0F) << "twice what was set";
    instrument_.setVolume(3, 0.5F);
    EXPECT_EQ(instrument_.getVolume(3), 0.0F);
    EXPECT_EQ(instrument_.numStops(), 3U);
    EXPECT_FALSE(instrument_.hasSubMenu());

    instrument_.play(61, 1.0F); // a key without samples
    instrument_.stop(61);
    instrument_.tune(equal, 61, 61);
    instrument_.fade(0.5);
    EXPECT_EQ(sample(0, 61).source(), 0U);
    EXPECT_FALSE(sample(0, 61).released());
    EXPECT_EQ(alGetError(), AL_NO_ERROR);
}

TEST_F(ALInstrumentTest, FadesAReleasedKeyUntilItCannotBeHeard)
{
    const Sound& a = sound(440.0);
    instrument_.appendStop("").volume = 1.0F;
    for (const std::size_t key : {60U, 61U}) {
        sample(0, key).setBuffer(a, 440.0);
        instrument_.play(static_cast<int>(key), 1.0F);
    }
    instrument_.stop(60);
    const Sample& released = sample(0, 60);
    for (int tick = 1; tick < 38; ++tick)
        instrument_.fade(0.9);
    EXPECT_TRUE(isPlaying(released.source()));
    EXPECT_NEAR(sourceFloat(released.source(), AL_GAIN), std::pow(0.9, 37), 1e-6);

    instrument_.play(60, 1.0F);
    EXPECT_FALSE(released.released()) << "struck anew";
    instrument_.fade(0.9);
    EXPECT_EQ(sourceFloat(released.source(), AL_GAIN), 1.0F);

    instrument_.stop(60);
    for (int tick = 1; tick <= 38; ++tick)
        instrument_.fade(0.9);
    EXPECT_FALSE(isPlaying(released.source()) || released.released());
    EXPECT_TRUE(isPlaying(sample(0, 61).source())) << "still held";
    EXPECT_EQ(sourceFloat(sample(0, 61).source(), AL_GAIN), 1.0F);
}

TEST_F(ALInstrumentTest, TunesWhatHasAnotherPitchAndNothingElse)
{
    const Sound& a = sound(440.0);
    instrument_.appendStop("");
    for (const std::size_t key : {56U, 57U, 58U})
        sample(0, key).setBuffer(a, 440.0);
    const auto pitchOf = [&](std::size_t key) {
        return sourceFloat(sample(0, key).source(), AL_PITCH);
    };
    const auto ratio = [](const Temperament& temperament, unsigned long key) {
        return static_cast<float>(temperament.getPitch(key) / 440.0);
    };
    const Temperament meantone = Temperament::Meantone();
    instrument_.tune(equal, 0, 127);
    EXPECT_FLOAT_EQ(pitchOf(57), 1.0F) << "at its root pitch";
    instrument_.tune(meantone, 57, 57);
    EXPECT_EQ(pitchOf(56), ratio(equal, 56));
    EXPECT_EQ(pitchOf(57), ratio(meantone, 57));
    EXPECT_EQ(pitchOf(58), ratio(equal, 58));

    alSourcef(sample(0, 57).source(), AL_PITCH, 3.0F);
    instrument_.tune(meantone, 57, 57);
    EXPECT_EQ(pitchOf(57), 3.0F) << "OpenAL is not told twice";

    const unsigned before = sample(0, 57).source();
    sample(0, 57).setBuffer(sound(220.0), 220.0);
    EXPECT_TRUE(before == sample(0, 57).source() || alIsSource(before) == AL_FALSE);
    EXPECT_EQ(pitchOf(57), 1.0F);
    instrument_.tune(meantone, 0, 127);
    EXPECT_EQ(pitchOf(57), 2.0F * ratio(meantone, 57)) << "a new sample is tuned all the same";
    EXPECT_EQ(pitchOf(58), ratio(meantone, 58));
}

TEST_F(ALInstrumentTest, SoundsInTune)
{
    Temperament equally = Temperament::Equal();
    Temperament meantone = Temperament::Meantone();
    DynamicTemperament dynamic;
    dynamic.isomorph(instrument_, 11); // a lower E
    instrument_.appendStop("").volume = 0.5F;
    for (std::size_t key = 24; key <= 96; ++key) {
        const double rootPitch = equal.getPitch(key - key % 9); // pipes a sixth apart
        sample(0, key).setBuffer(sound(rootPitch), rootPitch);
    }
    for (Temperament* temperament :
         std::initializer_list<Temperament*>{&equally, &meantone, &dynamic}) {
        instrument_.tune(*temperament, 0, 127);
        for (int key = 24; key <= 96; key += 5) {
            const auto slot = static_cast<unsigned long>(key);
            const double wanted = temperament->getPitch(slot);
            instrument_.play(key, 1.0F);
            const Stereo heard = rendered(loopback_, static_cast<std::size_t>(kRate));
            const double hertz = measuredHertz(std::span(heard.left).subspan(2400), kRate, wanted);
            EXPECT_NEAR(cents(hertz, wanted), 0.0,
                        0.25 / std::min(1.0, wanted / sample(0, slot).rootPitch()))
                << "key " << key;
            instrument_.stop(key);
            instrument_.fade(0.0);
            rendered(loopback_, 2400);
        }
    }
}

TEST_F(ALInstrumentTest, HasASourceForEveryKeyOfALargeOrganAndFreesThem)
{
    std::set<unsigned> sources;
    unsigned buffer = 0;
    {
        ALInstrument organ;
        auto& sound = organ.sounds["a"] = std::make_unique<Sound>(sine(440.0, 1.0));
        buffer = sound->buffer();
        for (std::size_t i = 0; i < 60; ++i) {
            organ.appendStop("").volume = 0.5F;
            for (Sample& key : organ.stops().back().samples) {
                key.setBuffer(*sound, 440.0);
                sources.insert(key.source());
            }
        }
        organ.play(60, 1.0F);
        for (const InstrumentStop& stop : organ.stops())
            EXPECT_TRUE(isPlaying(stop.samples[60].source()));
        rendered(loopback_, 1024);
    }
    EXPECT_EQ(sources.size(), 60 * kKeys);
    EXPECT_EQ(sources.count(0), 0U);
    EXPECT_TRUE(std::ranges::none_of(sources, [](unsigned source) { return alIsSource(source); }));
    EXPECT_FALSE(alIsBuffer(buffer));
    EXPECT_EQ(alGetError(), AL_NO_ERROR);
}

TEST(Sound, RefusesWhatCannotBePlayed)
{
    EXPECT_THROW(Sound(sine(440.0, 0.1)), FormatError) << "without OpenAL";
    const OpenALLoopback loopback(kRate);
    Pcm without = sine(440.0, 0.1);
    without.rate = 0.0;
    EXPECT_THROW(Sound{without}, FormatError);
    const Sound stereo(Pcm{{1, 2, 3, 4}, 2, 44100.5});
    EXPECT_EQ(stereo.size(), 8U);
    int rate = 0;
    alGetBufferi(stereo.buffer(), AL_FREQUENCY, &rate);
    EXPECT_EQ(rate, 44100);
}

} // namespace
