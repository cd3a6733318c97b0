#include "import/ImportedBank.h"
#include "import/gig.h"
#include "support/GigBytes.h"
#include "support/Sine.h"

namespace velmora {

using namespace riff;

namespace {

using PlayedGiga = ImportedBank<readGigaInstrument>;

/// A tone of 441 Hz, 100 frames a period.
std::string tone(double seconds = 0.2)
{
    return wave(points(sine(441, seconds, 44'100)), 44'100);
}

const double kHertzOfWave = 441;
const std::string kShortWave = list("wave", wave(std::string(160, '\0'), 8000));
const std::string kShortWaves = kShortWave + kShortWave + kShortWave + kShortWave;

} // namespace

TEST(GigaInstrument, LaysRegionsOnTheirKeys)
{
    const std::string regions =
        regionOf(36, 47, links({}, {1}), recording(tuning(40, 25, 6))) +
        regionOf(48, 59, tuning(50) + links({}, {2}, true), recording("")) +
        regionOf(60, 60, links({}, {3}), recording(tuning(60) + articulation(0, 0, false))) +
        regionOf(61, 300, links({}, {9}));
    PlayedGiga giga(bankOf(kShortWaves, instrumentOf("Harp", regions)));
    EXPECT_EQ(giga.keys(0), "0 -, 36 1 39.75, 48 2 50, 60 3 60, 61 -,");
    EXPECT_EQ(giga.attacks(0, 36), "1 39.75 -6dB;");
    EXPECT_EQ(giga.skipped, "wave 9: the bank does not contain it. ");
    giga.import.instrument->tune(Temperament::Meantone(), 0, 127);
    EXPECT_EQ(giga.import.instrument->stops()[0].samples[60].factor(), 1.0F) << "a drum";
}

TEST(GigaInstrument, FindsWavesByTheTableOfTheBank)
{
    // Each wave takes as many bytes; the second entry is in another file.
    const std::size_t size = kShortWave.size();
    const std::string cues = chunk("ptbl", numbers({8, 3, size, 0, size, 1, 0, 0}, 4));
    const auto at = [](std::size_t wave) { return links({}, {wave}); };
    const PlayedGiga giga(bankOf(
        kShortWave + kShortWave,
        instrumentOf("i", regionOf(1, 1, at(0)) + regionOf(2, 2, at(2)) + regionOf(3, 3, at(1))),
        cues));
    EXPECT_EQ(giga.keys(0), "0 -, 1 0 60, 2 2 60, 3 -,");
    EXPECT_EQ(giga.skipped, "wave 1: it is in another file of the bank. ");
}

TEST(GigaInstrument, LayersByVelocityAndTakesTurns)
{
    const auto limits = [](std::size_t two, std::size_t three) {
        return recording(articulation(two, three)) + recording(articulation(0));
    };
    const std::string velocities = links({{kVelocities, 1}}, {0, 1});
    const std::string regions =
        regionOf(1, 1, velocities, limits(0, 0)) + regionOf(2, 2, velocities, limits(40, 0)) +
        regionOf(3, 3, links({{kVelocities, 1, 2}}, {0, 1}, true), limits(40, 99)) +
        regionOf(4, 4, links({{kRoundRobin, 2, 3}, {kKeySwitch, 1}}, {0, 1, 2, 3, 3, 3, 3, 3})) +
        regionOf(5, 5, links({{kVelocities, 2, 3}}, {0, 1, 2, 3}));
    const PlayedGiga giga(bankOf(kShortWaves, instrumentOf("i", regions)));
    EXPECT_EQ(giga.attacks(0, 1), "0 60 0-63;1 60 64-127;") << "evenly";
    EXPECT_EQ(giga.attacks(0, 2), "0 60 0-40;1 60 41-127;");
    EXPECT_EQ(giga.attacks(0, 3), "0 60 0-99;1 60 100-127;");
    EXPECT_EQ(giga.attacks(0, 4), "0 60;1 60;2 60;") << "for the lowest key switch";
    EXPECT_EQ(giga.attacks(0, 5), "0 60 0-41;1 60 42-84;2 60 85-127;");
}

TEST(GigaInstrument, JoinsSidesAndGivesLayersStopsOfTheirOwn)
{
    const std::string stereo =
        list("wave",
             chunk("fmt ", numbers({1, 2}, 2) + numbers({8000, 32'000}, 4) + numbers({4, 16}, 2)) +
                 chunk("data", std::string(160, '\0')));
    const std::string regions = regionOf(1, 1, links({{kSide, 1}}, {0, 1})) +
                                regionOf(2, 2, links({{kSide, 1}}, {2, 2})) +
                                regionOf(3, 3, links({{kLayers, 1}}, {0, 1}));
    const PlayedGiga giga(bankOf(kShortWave + kShortWave + stereo, instrumentOf("i", regions)));
    EXPECT_EQ(giga.attacks(0, 1), "0 60 stereo;");
    EXPECT_EQ(giga.attacks(0, 2), "2 60 stereo;");
    EXPECT_EQ(giga.attacks(0, 3) + giga.attacks(1, 3), "0 #2 60;1 60;");
    EXPECT_EQ(giga.import.instrument->stopName(1), "i, layer 2");
    EXPECT_EQ(giga.import.instrument->getVolume(1), 1.0F) << "both are drawn";
}

TEST(GigaInstrument, ChoosesAnInstrument)
{
    const std::string bytes = bankOf(
        kShortWaves, instrumentOf("Harp", regionOf(1, 1, links({}, {0}))) + chunk("ins ", "") +
                         instrumentOf("", regionOf(2, 2, links({}, {1}))));
    RecordingHost host(SIZE_MAX);
    Import import(host, {.choice = 1});
    const auto read = [&] {
        readGigaInstrument(RIFF::File(std::as_bytes(std::span(bytes))), import);
    };
    read();
    EXPECT_THAT(import.choices, testing::ElementsAre("Harp", "Instrument 2"));
    EXPECT_EQ(keysOf(*import.instrument, 0), "0 -, 2 1 60, 3 -,");
    EXPECT_EQ(import.name, "Instrument 2");
    import.options.choice = 2;
    EXPECT_THROW(read(), FormatError);
    EXPECT_EQ(PlayedGiga(bankOf(kShortWaves, "")).error, "f: has no instruments");
}

TEST(GigaInstrument, SoundsInTuneForAsLongAsItIsHeld)
{
    // The note and the loop come from the recording, or else from the sampler chunk of the wave:
    // key 68 and three quarters of a semitone, frames 1,000 to 4,999.
    const std::string sampler = chunk(
        "smpl", numbers({0, 0, 0, 68, 3'221'225'472, 0, 0, 1, 0, 0, 0, 1'000, 4'999, 0, 0}, 4));
    for (const auto& [wave, own, shift] :
         {std::tuple(list("wave", tone()), tuning(69, 0, 0, 1'000, 4'000), 0.0),
          {list("wave", tone() + sampler), std::string(), 25.0},
          {list("wave", tone() + tuning(69, 10, 0, 1'000, 4'000)), std::string(), 10.0}}) {
        PlayedGiga giga(
            bankOf(wave, instrumentOf("i", regionOf(0, 127, links({}, {0}), recording(own)))));
        const double hertz = kHertzOfWave * std::exp2(shift / 1200);
        EXPECT_NEAR(giga.centsOff(64, hertz), 0.0, 0.25) << shift;
        ALInstrument& instrument = *giga.import.instrument;
        instrument.tune(equal, 0, 127);
        instrument.play(69, 1.0F);
        const Stereo sound = rendered(*instrument.source(), 96'000);
        const auto late = std::span(sound.left).last(48'000);
        EXPECT_NEAR(cents(measuredHertz(late, 48'000, hertz), hertz), 0.0, 0.25) << shift;
    }
}

TEST(GigaInstrument, SoundsAReleaseAfterTheKey)
{
    const std::string waves = list("wave", tone(3.0)) + list("wave", tone(1.0));
    PlayedGiga giga(bankOf(
        waves, instrumentOf("i", regionOf(69, 69, tuning(69) + links({{kRelease, 1}}, {0, 1})) +
                                     regionOf(70, 70, tuning(70) + links({}, {0})))));
    EXPECT_EQ(giga.attacks(0, 69), "0 69;");
    ALInstrument& instrument = *giga.import.instrument;
    const auto afterRelease = [&instrument](int key) {
        instrument.tune(equal, 0, 127);
        instrument.play(key, 1.0F);
        rendered(*instrument.source(), 4'800);
        instrument.stop(key);
        const Stereo sound = rendered(*instrument.source(), 43'200);
        return peak(std::span(sound.left).last(4'800));
    };
    EXPECT_LT(afterRelease(70), 0.01F);
    EXPECT_GT(afterRelease(69), 0.1F);
}

TEST(GigaInstrument, RejectsWhatCannotBePlayed)
{
    const std::string one = instrumentOf("i", regionOf(1, 1, links({}, {0})));
    const std::string compressed = list("wave", tone() + chunk("ewav", "1234"));
    EXPECT_EQ(PlayedGiga(bankOf(compressed, one)).error,
              "f: cannot be played: no key has a sound (wave 0: it is compressed, which cannot be "
              "decoded)");
    EXPECT_EQ(
        PlayedGiga(bankOf(list("wave", chunk("fmt ", "x")), one)).import.instrument->sounds.size(),
        0U);
    EXPECT_EQ(PlayedGiga(file("DLS ", list("lins", one))).error,
              "f: is missing the chunk \"wvpl\"");
    EXPECT_EQ(
        PlayedGiga(bankOf(kShortWaves, instrumentOf("i", list("rgn ", chunk("3lnk", "xx"))))).error,
        "f: cannot be played: no key has a sound");
    EXPECT_THROW(PlayedGiga(bankOf(kShortWaves, one), 0), Cancelled);
}

} // namespace velmora
