#include "import/sf2.h"

#include "import/ImportedBank.h"
#include "support/Sine.h"

using namespace riff;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr std::size_t kRange = 43;
constexpr std::size_t kSample = 53;
constexpr std::size_t kRoot = 58;

std::size_t range(std::size_t lo, std::size_t hi)
{
    return lo | hi << 8;
}

/// Points from `start` to `end` of the pool.
std::string sample(const std::string& name, std::size_t start, std::size_t end, int pitch = 60,
                   std::size_t type = 1, std::size_t rate = 8000)
{
    return field(name, 20) + numbers({start, end, 0, 0, rate}, 4) + static_cast<char>(pitch) +
           '\0' + numbers({0, type}, 2);
}

using Zone = std::vector<std::pair<std::size_t, std::size_t>>; // generator and amount
struct SfInstrument {
    std::string name;
    std::vector<Zone> zones;
};

/// The bank's lists, to be broken by the tests.
struct Bank {
    Bank(const std::string& headers, const std::vector<SfInstrument>& instruments, std::string pool)
        : smpl(std::move(pool)), shdr(headers + sample("EOS", 0, 0))
    {
        for (const auto& [instrumentName, zones] : instruments) {
            inst += field(instrumentName, 20) + number(ibag.size() / 4, 2);
            for (const Zone& zone : zones) {
                ibag += numbers({igen.size() / 4, 0}, 2);
                for (const auto& [generator, amount] : zone)
                    igen += numbers({generator, amount}, 2);
            }
        }
        inst += field("EOI", 20) + number(ibag.size() / 4, 2);
        ibag += numbers({igen.size() / 4, 0}, 2);
    }

    std::string bytes() const
    {
        return file("sfbk", info + list("sdta", chunk("smpl", smpl)) +
                                list("pdta", chunk("inst", inst) + chunk("ibag", ibag) +
                                                 chunk("igen", igen) + chunk("shdr", shdr)));
    }

    std::string info = name("The Bank");
    std::string smpl, shdr, inst, ibag, igen;
};

using SoundFont = ImportedBank<readSoundFont>;

std::string bankOf(const std::string& headers, const std::vector<SfInstrument>& instruments,
                   const std::string& pool = std::string(200, 'p'))
{
    return Bank(headers, instruments, pool).bytes();
}

const Zone kAll = {{kRange, range(0, 127)}, {kSample, 0}};

} // namespace

TEST(SoundFont, LaysZonesOnKeys)
{
    const std::string headers = sample("a", 0, 10, 61) + sample("b", 10, 20, 62);
    const SoundFont bank(bankOf(
        headers, {{"Overlaps",
                   {{{kRange, range(40, 50)}, {kSample, 0}},
                    {{kRange, range(45, 60)}, {kSample, 1}, {kRoot, 48}},
                    {{kRange, range(120, 255)}, {kSample, 1}, {kRoot, 0}},
                    {{kRange, range(9, 7)}, {kSample, 0}}}},
                  {"Global", {{{8, 1}}, {{kRange, range(5, 5)}, {kSample, 1}, {kSample, 0}}}},
                  {"Lost", {{{kRange, range(1, 9)}, {kSample, 2}}, {{kSample, 1}, {kRoot, 1}}}},
                  {"Caf\xE9", {}}}));
    EXPECT_EQ(bank.error, "none");
    EXPECT_EQ(bank.import.name, "The Bank");
    EXPECT_THAT(bank.keys(0), ElementsAre("40-44 a 61", "45-60 b 48", "120-127 b 62"))
        << "later zones lie above earlier ones; a root of 0 is none; no key beyond 127";
    EXPECT_THAT(bank.keys(1), ElementsAre("0 a 61", "5 a 61"))
        << "a zone without a range lies on key 0, one without a sample has the first";
    EXPECT_THAT(bank.keys(2), ElementsAre("0 b 1")) << "there is no third sample";
    EXPECT_THAT(bank.skipped(), ElementsAre("Lost: it names sample 3 of 2"));
    EXPECT_THAT(bank.keys(3), IsEmpty());
    EXPECT_EQ(bank.import.instrument->stops().at(3).name, "Caf\xC3\xA9");
    EXPECT_EQ(bank.import.instrument->getVolume(0), 1.0F);
    EXPECT_EQ(bank.import.instrument->getVolume(1), 0.0F);
    EXPECT_EQ(bank.import.report.ranks, 3U);
    EXPECT_EQ(bank.import.report.pipes, 5U + 16 + 8 + 2 + 1);
}

TEST(SoundFont, ReadsSamples)
{
    const SoundFont bank(bankOf(
        sample("left", 0, 10, 60, 4, 44100) + sample("linked", 0, 21, 60, 8, 22050) +
            sample("ROM", 30, 40, 60, 0x8001) + sample("twice", 0, 2) + sample("beyond", 100, 110) +
            sample("twice", 0, 30) + sample("cut", 95, 110) + sample("backwards", 9, 8) +
            sample("silent", 0, 9, 60, 1, 0) + sample("twenty letters long!", 0, 4),
        {{"i", {kAll}}}));
    EXPECT_EQ(bank.sound("left"), "mono 44100 20");
    EXPECT_EQ(bank.sound("linked"), "stereo 22050 40") << "whole frames";
    EXPECT_EQ(bank.sound("ROM"), "stereo 8000 20");
    EXPECT_EQ(bank.sound("twice"), "mono 8000 60") << "the later one";
    EXPECT_EQ(bank.sound("cut"), "mono 8000 10");
    EXPECT_EQ(bank.sound("twenty letters long!"), "mono 8000 8");
    EXPECT_THAT(bank.skipped(), ElementsAre("beyond: its data is not in the file",
                                            "backwards: is empty", HasSubstr("silent: ")));
    EXPECT_EQ(bank.import.instrument->usage, 20 + 40 + 20 + 4 + 60 + 10 + 8);
    EXPECT_EQ(bank.import.report.samples, 6U);
}

TEST(SoundFont, ReportsProgress)
{
    std::string headers;
    for (int i = 0; i < 104; ++i)
        headers += sample(fmt::format("s{}", i), 0, 1);
    const std::string bytes = bankOf(headers, {{"i", {kAll}}});
    std::vector<std::string> expected{"start 104"};
    for (int i = 2; i < 104; i += 3)
        expected.push_back(fmt::format("3 s{}", i));
    expected.emplace_back("2 Done %k");
    EXPECT_EQ(SoundFont(bytes).host.calls, expected);
    EXPECT_THAT(SoundFont(bankOf(sample("a", 0, 1), {{"i", {kAll}}})).host.calls,
                ElementsAre("start 1", "1 a", "0 Done %k"));

    const SoundFont cancelled(bytes, 3);
    EXPECT_EQ(cancelled.error, "cancelled");
    EXPECT_EQ(cancelled.host.calls.size(), 4U);
}

TEST(SoundFont, RefusesWhatCannotSound)
{
    const Bank good(sample("a", 0, 9), {{"i", {kAll}}, {"j", {kAll}}}, std::string(200, 'p'));
    for (const std::string id : {"sdta", "smpl", "pdta", "INFO", "shdr", "inst", "ibag", "igen"}) {
        std::string bytes = good.bytes();
        bytes.replace(bytes.find(id), 4, "none");
        EXPECT_EQ(SoundFont(bytes).error, "f: has no \"" + id + "\"");
    }
    const auto broken = [&good](auto change) {
        Bank bank = good;
        change(bank);
        return bank.bytes();
    };
    for (const auto& [error, bytes] : {
             std::pair{"f: is not a RIFF file", std::string("RIF")},
             {"f: has no \"sdta\"", good.bytes().substr(0, 44)},
             {"f: holds no instruments", broken([](Bank& b) { b.shdr = "short"; })},
             {"f: holds no instruments", broken([](Bank& b) { b.inst.resize(22); })},
             {"f: has nothing to sound", broken([](Bank& b) { b.ibag.clear(); })},
             {"f: has nothing to sound (a: its data is not in the file)",
              broken([](Bank& b) { b.smpl.clear(); })},
             {"none", broken([](Bank& b) { b.inst[2 * 22 + 20] = 99; })},
             {"f, byte 282: the indices of \"inst\" go back",
              broken([](Bank& b) { b.inst[20] = 9; })},
             {"f, byte 356: the indices of \"ibag\" go back",
              broken([](Bank& b) { b.ibag[0] = 9; })},
         })
        EXPECT_EQ(SoundFont(bytes).error, error);
}

TEST(SoundFont, SoundsInTune)
{
    SoundFont bank(bankOf(sample("A", 100, 48'100, 69, 1, 44'100), {{"i", {kAll}}},
                          std::string(200, '\0') + points(sine(440, 1.1, 44'100))));
    for (const int key : {60, 69, 76}) {
        const Temperament meantone = Temperament::Meantone();
        const double hertz =
            440 * meantone.getPitch(static_cast<unsigned long>(key)) / equal.getPitch(69);
        EXPECT_NEAR(bank.centsOff(meantone, key, hertz), 0.0, 0.25 * std::max(1.0, 440 / hertz));
        bank.import.instrument->stops().at(0).samples[static_cast<std::size_t>(key)].play(0.0F);
    }
}
