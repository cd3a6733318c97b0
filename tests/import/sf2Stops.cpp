#include "import/ImportedBank.h"
#include "import/sf2.h"
#include "import/soundFontBytes.h"
#include "support/Sine.h"

namespace velmora {

using namespace riff;

namespace {

using Stops = ImportedBank<readSoundFontStops>;

enum : std::size_t {
    kStartOffset = 0,
    kEndOffset = 1,
    kLoopBeginOffset = 2,
    kLoopEndOffset = 3,
    kStartCoarseOffset = 4,
    kPan = 17,
    kReleaseTime = 38,
    kVelocityRange = 44,
    kLoopEndCoarseOffset = 50,
    kAttenuation = 48,
    kCoarseTune = 51,
    kFineTune = 52,
    kModes = 54,
    kScale = 56,
};

const auto minus = [](std::size_t value) { return 65536 - value; };
const std::string kPool(200, 'p');

/// A tone of 441 Hz, 100 points a period, in the pool from point 100 on.
const std::string kTone = std::string(200, '\0') + points(sine(441, 1.1, 44'100));
const double kHertzOfTone = 441;

/// What a stop plays while a key is held for two seconds.
Stereo held(Stops& font, int key, float velocity = 1.0F)
{
    ALInstrument& instrument = *font.import.instrument;
    instrument.tune(equal, 0, 127);
    instrument.play(key, velocity);
    return rendered(*instrument.source(), 96'000);
}

} // namespace

TEST(SoundFontStops, TunesKeysAsTheBankSays)
{
    const Instruments instruments = {
        {"i",
         {{kFineTune, 20, kAttenuation, 60}, // global
          {kRange, range(10, 19), kSample, 0},
          {kRange, range(20, 29), kFineTune, minus(30), kCoarseTune, minus(2), kSample, 1},
          {kRange, range(30, 39), kRoot, 0, kAttenuation, 0, kSample, 1},
          {kRange, range(40, 49), kScale, 50, kSample, 1, kRoot, 99}}},
        {"Unpitched", {{kScale, 0, kSample, 2}}}};
    Stops font(soundFont(sample("a", 0, 10, 61) + sample("b", 10, 20, 62, 1, 8000, {0, 0, 251}) +
                             sample("c", 20, 30, 255),
                         kPool, instruments));
    EXPECT_EQ(font.error, "none");
    EXPECT_EQ(font.keys(0).substr(0, 5), "0 -, ");
    EXPECT_EQ(font.attacks(0, 10), "a 60.8 -6dB;");
    EXPECT_EQ(font.attacks(0, 20), "b 64.35 -6dB;") << "corrected by -5 cents";
    EXPECT_EQ(font.attacks(0, 30), "b -0.15;") << "a root of 0 counts";
    EXPECT_EQ(font.attacks(0, 40), "b 50.85 -6dB;") << "22 keys of 50 cents below key 62";
    EXPECT_EQ(font.attacks(0, 42), "b 51.85 -6dB;") << "what follows the sample is ignored";
    EXPECT_EQ(font.attacks(0, 50), "");

    EXPECT_EQ(font.attacks(1, 0) + font.attacks(1, 127), "c 0;c 127;") << "all keys";
    ALInstrument& instrument = *font.import.instrument;
    instrument.tune(Temperament::Meantone(), 0, 127);
    EXPECT_EQ(instrument.stops()[1].samples[64].factor(), 1.0F) << "as recorded";
    EXPECT_NE(instrument.stops()[0].samples[18].factor(), 1.0F);
}

TEST(SoundFontStops, PlacesSoundsAndLoops)
{
    const SampleTraits loop{20, 80};
    const Instruments instruments = {
        {"i",
         {{kRange, 0x0000, kModes, 1, kSample, 0},
          {kRange, 0x0101, kModes, 0, kSample, 0},
          {kRange, 0x0202, kModes, 1, kLoopBeginOffset, 5, kLoopEndOffset, minus(10), kSample, 0},
          {kRange, 0x0303, kModes, 1, kStartOffset, 10, kEndOffset, minus(30), kSample, 0},
          {kRange, 0x0404, kModes, 1, kStartCoarseOffset, 1, kSample, 0},
          {kRange, 0x0505, kModes, 1, kLoopEndCoarseOffset, minus(1), kSample, 0},
          {kRange, 0x0606, kModes, 1, kSample, 1}}}};
    const Stops font(
        soundFont(sample("a", 10, 100, 60, 1, 8000, loop) + sample("ROM", 0, 9, 60, 0x8001),
                  std::string(200, '\0'), instruments));
    EXPECT_EQ(font.attacks(0, 0), "a 60 10~70;");
    EXPECT_EQ(font.attacks(0, 1), "a #2 60;");
    EXPECT_EQ(font.attacks(0, 2), "a #3 60 15~60;");
    EXPECT_EQ(font.attacks(0, 3), "a #4 60 0~50;") << "cut to what is left";
    EXPECT_EQ(font.attacks(0, 4), "") << "beyond the pool";
    EXPECT_EQ(font.attacks(0, 5), "a #2 60;") << "an empty loop, shared with key 1";
    EXPECT_EQ(font.skipped, "i: a: the file is cut short: its sound is missing. i: ROM: its sound "
                            "is in the memory of a sound card and not in the file. ");
}

TEST(SoundFontStops, LayersByVelocity)
{
    const Instruments instruments = {
        {"Piano",
         {{kVelocityRange, range(0, 63), kSample, 0},
          {kVelocityRange, range(64, 127), kSample, 1},
          {kVelocityRange, range(50, 127), kAttenuation, 10, kRange, range(60, 61), kSample, 2}}},
        {"Layered", {{kAttenuation, 30, kSample, 0}, {kSample, 1}}}};
    const Stops font(
        soundFont(sample("soft", 0, 10) + sample("loud", 10, 20) + sample("mid", 20, 30), kPool,
                  instruments));
    EXPECT_EQ(font.attacks(0, 59), "soft 60 0-63;loud 60 64-127;");
    EXPECT_EQ(font.attacks(0, 60), font.attacks(0, 59)) << "the louder ones";
    EXPECT_EQ(font.attacks(1, 60), "loud 60;");
    EXPECT_EQ(font.skipped,
              "Piano: a stop sounds one sample for each key and velocity; 1 layer is "
              "left out. Layered: a stop sounds one sample for each key and velocity; "
              "1 layer is left out. ");
    EXPECT_EQ(font.import.instrument->sounds.size(), 2U) << "held once";
}

TEST(SoundFontStops, JoinsTheSidesOfStereoSounds)
{
    const std::string headers = sample("R", 0, 20, 60, 2, 8000, {2, 12, 0, 1}) +
                                sample("L", 20, 40, 60, 4, 8000, {22, 32, 0, 0}) +
                                sample("other", 40, 70, 60, 1, 8000, {45, 65});
    const auto zone = [](std::size_t which, std::size_t pan, std::size_t fine = 0) {
        return Zone{kPan, pan, kFineTune, fine, kModes, 1, kSample, which};
    };
    const std::size_t left = minus(500);
    const Stops font(soundFont(headers, kPool,
                               {{"Linked", {zone(0, 0), zone(1, 0)}},
                                {"Panned", {zone(0, 500, 4), zone(2, left)}},
                                {"Detuned", {zone(0, 500, 30), zone(2, left)}},
                                {"Centre", {zone(0, 0), zone(2, 0)}},
                                {"Crossed", {zone(0, left), zone(2, 500)}}}));
    EXPECT_EQ(font.attacks(0, 60), "L 60 stereo 2~12;");
    EXPECT_EQ(font.attacks(1, 60), "other 59.98 stereo 5~25;") << "the longer loop";
    EXPECT_EQ(font.attacks(2, 60), "R 59.7 2~12;");
    EXPECT_EQ(font.attacks(3, 60), "R 60 2~12;");
    EXPECT_EQ(font.attacks(4, 60), "R #2 60 stereo 5~25;");
}

TEST(SoundFontStops, SoundsInTuneAndOnBothSidesWhileAKeyIsHeld)
{
    // The left loop has 40 periods and the right one 20, at half the level.
    std::string half = points(sine(441, 1.1, 44'100));
    for (std::size_t i = 0; i + 1 < half.size(); i += 2) {
        auto* point = reinterpret_cast<std::int16_t*>(half.data() + i);
        *point = static_cast<std::int16_t>(*point / 2);
    }
    const std::size_t right = 100 + 48'510;
    const std::string bytes = soundFont(
        sample("L", 100, 6'000, 69, 4, 44'100, {1'000, 5'000, 0, 1}) +
            sample("R", right, right + 4'000, 69, 2, 44'100, {right + 1'000, right + 3'000, 0, 0}),
        kTone + half, {{"i", {{kModes, 1, kSample, 0}, {kModes, 1, kSample, 1}}}});
    Stops font(bytes);
    EXPECT_NEAR(font.centsOff(76, kHertzOfTone), 0.0, 0.25);
    const Stereo sound = held(font, 69);
    const auto late = std::span(sound.left).last(48'000);
    EXPECT_NEAR(peak(late), peak(std::span(sound.left).subspan(4'000, 4'000)), 0.005F);
    for (std::size_t i = 48'000; i < 96'000; i += 480)
        ASSERT_NEAR(peak(std::span(sound.right).subspan(i, 480)), peak(late) / 2, 0.005F) << i;
    EXPECT_NEAR(cents(measuredHertz(late, 48'000, kHertzOfTone), kHertzOfTone), 0.0, 0.25);

    Stops mono(bytes, SIZE_MAX, {.toMono = true});
    EXPECT_EQ(2 * mono.import.instrument->usage, font.import.instrument->usage);
    const Stereo mixed = held(mono, 69);
    EXPECT_NEAR(peak(mixed.left), peak(mixed.right), 0.001F);
    EXPECT_GT(peak(mixed.left), 0.05F);
}

TEST(SoundFontStops, ReadsSamplesOf24Bits)
{
    // A tone too soft for 16 bits.
    const Pcm tone = sine(441, 1.1, 44'100);
    std::string high, low;
    for (const std::int16_t value : tone.samples) {
        const int soft = value / 128;
        high += numbers({static_cast<std::size_t>(soft >> 8)}, 2);
        low += static_cast<char>(soft);
    }
    const std::string bytes = soundFont(sample("A", 0, tone.samples.size(), 69, 1, 44'100), high,
                                        {{"i", {{kSample, 0}}}}, "", low);
    Stops font(bytes);
    EXPECT_NEAR(font.centsOff(69, kHertzOfTone), 0.0, 0.25);
    EXPECT_EQ(font.import.instrument->usage, static_cast<std::int64_t>(4 * tone.samples.size()));
    const Stereo sound = held(font, 69);
    const float loudest = peak(std::span(sound.left).subspan(4'000, 20'000));
    EXPECT_GT(loudest, 3e-6F) << "a 128th of the level of other tones";
    EXPECT_LT(loudest, 6e-6F);
    EXPECT_EQ(Stops(bytes, SIZE_MAX, {.to16Bit = true}).import.instrument->usage,
              static_cast<std::int64_t>(2 * tone.samples.size()));
}

TEST(SoundFontStops, LetsSoundsEndAsTheBankSays)
{
    // A drum with a long release plays to its end; a reed goes on behind its loop.
    const Instruments instruments = {
        {"Drum", {{kReleaseTime, 1200, kSample, 0}}},
        {"Short", {{kSample, 0}}},
        {"Reed", {{kModes, 3, kSample, 1}}},
    };
    Stops font(soundFont(sample("A", 100, 44'200, 69, 1, 44'100) +
                             sample("B", 100, 44'200, 69, 1, 44'100, {1'100, 5'100}),
                         kTone, instruments));
    const auto peakAfterRelease = [&font](std::size_t stop, double seconds) {
        ALInstrument& instrument = *font.import.instrument;
        for (std::size_t i = 0; i < instrument.numStops(); ++i)
            instrument.setVolume(i, i == stop ? 0.5F : 0.0F);
        instrument.silence();
        instrument.tune(equal, 0, 127);
        instrument.play(69, 1.0F);
        rendered(*instrument.source(), 4'800);
        instrument.stop(69);
        const auto frames = static_cast<std::size_t>(48'000 * seconds);
        const Stereo sound = rendered(*instrument.source(), frames);
        return peak(std::span(sound.left).last(2'400));
    };
    EXPECT_GT(peakAfterRelease(0, 0.8), 0.1F);
    EXPECT_LT(peakAfterRelease(1, 0.8), 0.01F);
    EXPECT_GT(peakAfterRelease(2, 0.8), 0.1F);
    EXPECT_LT(peakAfterRelease(2, 1.5), 0.001F);
}

TEST(SoundFontStops, LimitsItsMemoryAndCanBeCancelled)
{
    std::vector<Zone> zones;
    for (std::size_t key = 0; key < 100; ++key)
        zones.push_back({kRange, range(key, key), kStartOffset, key, kSample, 0});
    const std::string bomb =
        soundFont(sample("a", 0, 1'000'000), std::string(2'000'000, 'p'), {{"i", zones}});
    EXPECT_EQ(Stops(bomb).error,
              "f: is damaged: its samples would take 191 MB, but the file holds only 2 MB");
    EXPECT_THROW(Stops(soundFont(sample("a", 0, 10), kPool, {{"i", {{kSample, 0}}}}), 0),
                 Cancelled);
    EXPECT_EQ(
        Stops(soundFont(sample("a", 0, 10), kPool, {{"i", {{kSample, 7}}}})).error,
        "f: cannot be played: no key has a sound (i: it refers to sample 8, but there are only "
        "1)");
}

} // namespace velmora
