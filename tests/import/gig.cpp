#include "import/gig.h"

#include "base/Log.h"
#include "import/ImportedBank.h"
#include "support/Sine.h"

#include <spdlog/sinks/ostream_sink.h>

#include <numeric>
#include <sstream>

using namespace riff;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const std::string kWave = list("wave", wave(points(sine(440, 0.01, 8000)), 8000));

std::string pool(std::size_t waves)
{
    std::string result;
    for (std::size_t i = 0; i < waves; ++i)
        result += kWave;
    return list("wvpl", result);
}

std::string vers(std::size_t major)
{
    return chunk("vers", numbers({7, major, 8, 9}, 2));
}

std::string region(std::size_t wave, std::size_t at = 44)
{
    return list("rgn ", chunk("3lnk", std::string(at, '\x01') + number(wave, 4)));
}

std::string instrument(const std::string& text, const std::string& regions)
{
    return list("ins ", name(text) + list("lrgn", regions));
}

std::string bank(const std::string& waves, const std::string& instruments,
                 const std::string& version = "")
{
    return file("DLS ", version + waves + list("lins", instruments));
}

using Giga = ImportedBank<readGigaSampler>;

} // namespace

TEST(GigaSampler, LaysRegionsOnKeysFrom21)
{
    std::string many;
    for (std::size_t i = 0; i < 120; ++i)
        many += region(0);
    const std::string noLink = list("rgn ", chunk("3dim", "xx"));
    const Giga giga(
        bank(pool(2), instrument("First", noLink + region(1) + chunk("rgn ", "") + region(0) +
                                              noLink + region(1)) +
                          chunk("ins ", "") + instrument("Many", many) +
                          instrument("Lost", region(1) + region(2) + region(0, 43) + region(1)) +
                          list("ins ", "")));
    EXPECT_EQ(giga.error, "none");
    EXPECT_EQ(giga.import.name, "First");
    EXPECT_THAT(giga.keys(0), ElementsAre("21 1 21", "22 0 22", "23 1 23"));
    EXPECT_EQ(giga.keys(1).size(), 107U);
    EXPECT_THAT(giga.keys(2), ElementsAre("21 1 21", "24 1 24"));
    EXPECT_THAT(giga.skipped(), ElementsAre("Lost: its region on key 22 has no wave",
                                            "Lost: its region on key 23 has no wave"));
    EXPECT_THAT(giga.keys(3), IsEmpty());
    EXPECT_EQ(giga.import.instrument->stops().at(1).name, "Many");
    EXPECT_EQ(giga.import.instrument->getVolume(0), 1.0F);
    EXPECT_EQ(giga.import.instrument->usage, 2 * 160);
    EXPECT_EQ(giga.sound("1"), "mono 8000 160");
}

TEST(GigaSampler, FindsTheWaveByTheVersion)
{
    // The words before an index of 1 would be a wave that there is not.
    for (const auto& [version, at] : {std::pair{std::string(), 44U},
                                      {vers(2), 44U},
                                      {vers(3), 68U},
                                      {chunk("vers", "3"), 44U}}) {
        const Giga giga(bank(pool(2), instrument("", region(1, at)), version));
        EXPECT_THAT(giga.error, "none") << at;
        EXPECT_EQ(giga.import.name, "gig") << "the file gives no name";
        EXPECT_THAT(giga.keys(0), ElementsAre("21 1 21")) << at;
    }
}

TEST(GigaSampler, ReportsProgressAndWavesLeftOut)
{
    const std::string one = instrument("i", region(11));
    EXPECT_THAT(Giga(bank(pool(12), one)).host.calls,
                ElementsAre("start 12", "5 Sample 5", "5 Sample 10", "2 Done %k"));
    EXPECT_EQ(Giga(bank(pool(12), one), 1).error, "cancelled");

    const std::string broken =
        list("wvpl", chunk("wave", "") + list("wave", chunk("fmt ", "x")) + kWave);
    const Giga giga(bank(broken, instrument("i", region(2))));
    EXPECT_THAT(giga.skipped(), ElementsAre("wave 0: is not a list", HasSubstr("wave 1: ")));
    EXPECT_THAT(giga.keys(0), ElementsAre("21 2 21"));
    EXPECT_THAT(giga.host.calls, ElementsAre("start 3", "3 Done %k"));
}

TEST(GigaSampler, LogsArticulations)
{
    std::ostringstream text;
    auto& log = logger("import");
    log.sinks().push_back(std::make_shared<spdlog::sinks::ostream_sink_st>(text));
    std::string data(34, '\0');
    std::iota(data.begin(), data.end(), '\0');
    const Giga giga(bank(pool(1), list("ins ", list("lart", chunk("3ewg", data))), vers(3)));
    log.sinks().pop_back();
    for (const char* line :
         {"gig::version 7 3 8 9\n", "EffectSend = 256\n", "Attenuation = 84148994\n",
          "FineTune = 1798\n", "PitchbendRange = 2312\n", "dimkeystart = 10\n",
          "DimensionKeyRange.high = 11\n", "id0 = 32\n", "id1 = 33\n"})
        EXPECT_THAT(text.str(), HasSubstr(line));
}

TEST(GigaSampler, RefusesWhatCannotSound)
{
    const std::string good = bank(pool(1), instrument("i", region(0)));
    ASSERT_EQ(Giga(good).error, "none");
    for (const auto& [error, bytes] : {
             std::pair{"f: is not a RIFF file", std::string()},
             {"f: has no \"wvpl\"", file("DLS ", list("lins", ""))},
             {"f: has no \"lins\"", file("DLS ", pool(1))},
             {"f: has no \"lins\"", file("DLS ", pool(1) + chunk("lins", ""))},
             {"f: has nothing to sound", bank(pool(1), "")},
             {"f: has nothing to sound", bank(pool(1), list("ins ", ""))},
             {"f: has nothing to sound (i: its region on key 21 has no wave)",
              bank(list("wvpl", ""), instrument("i", region(0)))},
         })
        EXPECT_EQ(Giga(bytes).error, error);
}

TEST(GigaSampler, SoundsInTune)
{
    // A wave plays at its own pitch on its key, whatever that is.
    Giga giga(bank(list("wvpl", list("wave", wave(points(sine(440, 1.1, 44'100)), 44'100))),
                   instrument("i", region(0) + region(0))));
    const Temperament meantone = Temperament::Meantone();
    const double hertz = 440 * meantone.getPitch(22) / equal.getPitch(22);
    EXPECT_NEAR(giga.centsOff(meantone, 22, hertz), 0.0, 0.25);
}
