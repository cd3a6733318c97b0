#include "import/gig.h"

#include "import/ImportedBank.h"
#include "support/Log.h"
#include "support/Sine.h"

namespace velmora {

using namespace riff;

namespace {

using Giga = ImportedBank<readGigaSampler>;

const auto repeated = [](std::size_t times, const std::string& bytes) {
    return fmt::format("{}", fmt::join(std::vector(times, bytes), ""));
};
const std::string kWave = list("wave", wave(std::string(160, 'w'), 8000));

std::string region(std::size_t wave, std::size_t at = 44)
{
    return list("rgn ", chunk("3lnk", std::string(at, '\x01') + numbers({wave}, 4)));
}

std::string instrument(const std::string& text, const std::string& regions)
{
    return list("ins ", list("INFO", chunk("INAM", text)) + list("lrgn", regions));
}

std::string bank(const std::string& waves, const std::string& instruments,
                 const std::string& version = "")
{
    return file("DLS ", version + list("wvpl", waves) + list("lins", instruments));
}

} // namespace

TEST(GigaSampler, AssignsRegionsToKeysFrom21)
{
    const std::string noLink = list("rgn ", chunk("3dim", "xx"));
    const std::string regions = region(1) + chunk("rgn ", "") + region(0) + noLink + region(1);
    const Giga giga(
        bank(kWave + kWave, instrument("First", noLink + regions) + chunk("ins ", "") +
                                instrument("Many", repeated(120, region(0))) +
                                instrument("Lost", region(2) + region(0, 43) + region(1))));
    EXPECT_EQ(giga.import.name, "First");
    EXPECT_EQ(giga.keys(0), "0 -, 21 1 21, 22 0 22, 23 1 23, 24 -,");
    EXPECT_TRUE(giga.keys(1).ends_with(" 127 0 127,")) << giga.keys(1);
    EXPECT_EQ(giga.keys(2), "0 -, 23 1 23, 24 -,");
    EXPECT_EQ(giga.skipped, "Lost: the region on key 21 has no wave. "
                            "Lost: the region on key 22 has no wave. ");
}

TEST(GigaSampler, ReadsTheWaveIndexAtTheOffsetOfTheVersion)
{
    // Read at another offset, the index would not exist.
    for (const auto& [version, at] : {std::pair{std::string(), 44U},
                                      {chunk("vers", numbers({7, 3, 8, 9}, 2)), 68U},
                                      {chunk("vers", "3"), 44U}}) {
        const Giga giga(bank(kWave + kWave, list("ins ", list("lrgn", region(1, at))), version));
        EXPECT_EQ(giga.keys(0), "0 -, 21 1 21, 22 -,") << version;
        EXPECT_EQ(giga.import.name, "gig") << "the default name";
    }
}

TEST(GigaSampler, ReportsProgressAndSkippedWaves)
{
    const std::string broken = chunk("wave", "") + list("wave", chunk("fmt ", "x"));
    const std::string bytes = bank(broken + repeated(10, kWave), instrument("i", region(2)));
    const Giga giga(bytes);
    EXPECT_THAT(giga.host.calls,
                testing::ElementsAre("start 12", "5 Sample 5", "5 Sample 10", "2 Done: 12 waves"));
    EXPECT_TRUE(giga.skipped.starts_with("wave 0: is not a list of chunks. wave 1: "))
        << giga.skipped;
    EXPECT_EQ(giga.keys(0), "0 -, 21 2 21, 22 -,");
    EXPECT_THROW(Giga(bytes, 1), Cancelled);
}

TEST(GigaSampler, LogsArticulationsForDebuggingOnly)
{
    const std::string articulation = list("lart", chunk("3ewg", std::string(40, '\x01')));
    const std::string bytes = bank(kWave, list("ins ", articulation + list("lrgn", region(0))),
                                   chunk("vers", "12345678"));
    const auto import = [&] { const Giga giga(bytes); };
    EXPECT_THAT(logOf(import),
                testing::AllOf(testing::HasSubstr("gig::version 12849 13363 13877 14391"),
                               testing::HasSubstr("EffectSend = 257"),
                               testing::HasSubstr("id1 = 1"), testing::HasSubstr("Done %k"),
                               testing::HasSubstr("DONE 1")));
    EXPECT_EQ(logOf(import, spdlog::level::info), "");
}

TEST(GigaSampler, RejectsBanksThatCannotSound)
{
    const std::string one = instrument("i", region(0));
    EXPECT_EQ(Giga("RIF").error, "f: is not a RIFF file");
    EXPECT_EQ(Giga(file("DLS ", list("lins", one))).error, "f: is missing the chunk \"wvpl\"");
    EXPECT_EQ(Giga(file("DLS ", list("wvpl", "") + chunk("lins", ""))).error,
              "f: is missing the chunk \"lins\"");
    EXPECT_EQ(Giga(bank("", one)).error,
              "f: cannot be played: no key has a sound (i: the region on key 21 has no wave)");
}

TEST(GigaSampler, SoundsInTune)
{
    // A wave plays at its own pitch on any key.
    const std::string tone = wave(points(sine(440, 1.1, 44'100)), 44'100);
    Giga giga(bank(list("wave", tone), instrument("i", region(0) + region(0))));
    EXPECT_NEAR(giga.centsOff(22, 440 * equal.getPitch(69) / equal.getPitch(22)), 0.0, 0.25);
}

} // namespace velmora
