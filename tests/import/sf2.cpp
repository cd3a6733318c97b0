#include "import/sf2.h"

#include "import/ImportedBank.h"
#include "import/soundFontBytes.h"
#include "support/Sine.h"

namespace velmora {

using namespace riff;

namespace {

using SoundFont = ImportedBank<readSoundFont>;

} // namespace

TEST(SoundFont, AssignsZonesToKeys)
{
    const Instruments instruments = {
        {"Overlaps",
         {{kRange, range(40, 50), kSample, 0},
          {kRange, range(45, 60), kSample, 1, kRoot, 48},
          {kRange, range(120, 255), kSample, 1, kRoot, 0}}},
        {"Global", {{8, 1}, {kRange, range(5, 5), kSample, 1, kSample, 0}}},
        {"Lost \xE9", {{kRange, range(1, 9), kSample, 2}}}};
    const std::string headers = sample("a", 0, 10, 61) + sample("b", 10, 20, 62);
    const SoundFont font(soundFont(headers, std::string(40, 'p'), instruments));
    EXPECT_EQ(font.import.name, "The Bank");
    EXPECT_EQ(font.keys(0), "0 -, 40 a 61, 45 b 48, 61 -, 120 b 62,") << "a root of 0 is ignored";
    EXPECT_EQ(font.keys(1), "0 a 61, 1 -, 5 a 61, 6 -,") << "without a range: key 0";
    EXPECT_EQ(font.skipped, "Lost \xC3\xA9: it refers to sample 3, but there are only 2. ");
    EXPECT_EQ(font.import.instrument->getVolume(0), 1.0F);
    EXPECT_EQ(font.import.report.pipes, 5U + 16 + 8 + 2);
}

TEST(SoundFont, ReadsSamples)
{
    const SoundFont font(soundFont(
        sample("left", 0, 10, 60, 4, 44100) + sample("linked", 0, 21, 60, 8, 22050) +
        sample("ROM", 30, 40, 60, 0x8001) + sample("twice", 0, 2) + sample("beyond", 100, 110) +
        sample("twice", 0, 30) + sample("cut", 95, 110) + sample("backwards", 9, 8)));
    EXPECT_EQ(font.sounds, "ROM: 2 8000 20. cut: 1 8000 10. left: 1 44100 20. "
                           "linked: 2 22050 40. twice: 1 8000 60. ");
    EXPECT_EQ(font.skipped, "beyond: the file does not contain its data. backwards: is empty. ");
    EXPECT_EQ(font.import.instrument->usage, 20 + 40 + 20 + 4 + 60 + 10);
}

TEST(SoundFont, LimitsTheMemoryOfItsSamples)
{
    std::string headers;
    for (int i = 0; i < 40; ++i)
        headers += sample(std::to_string(i), 0, 1'000'000);
    const SoundFont bomb(soundFont(headers, std::string(2'000'000, 'p')));
    EXPECT_EQ(bomb.error, "f: is damaged: its samples would take 77 MB, but the file holds only "
                          "2 MB");
    EXPECT_EQ(bomb.import.instrument->usage, 0);

    const auto compressed =
        soundFont(sample("a", 0, 10), "pool", {{"i", {{}}}}, numbers({3, 1}, 2));
    const std::string why =
        "f: is a SoundFont 3 bank with compressed samples; convert it to SoundFont 2";
    EXPECT_EQ(SoundFont(compressed).error, why);
    EXPECT_EQ(SoundFont(soundFont(sample("a", 0, 9, 60, 0x11))).error, why) << "an Ogg sample";
}

TEST(SoundFont, ReportsProgress)
{
    for (const auto& [samples, step] : {std::pair{1U, 1U}, {48U, 1U}, {49U, 2U}, {104U, 3U}}) {
        std::string headers;
        for (unsigned i = 1; i <= samples; ++i)
            headers += sample(std::to_string(i), 0, 1);
        const auto calls = SoundFont(soundFont(headers)).host.calls;
        ASSERT_EQ(calls.size(), 2 + samples / step);
        EXPECT_EQ(calls[0], fmt::format("start {}", samples));
        EXPECT_EQ(calls[1], fmt::format("{} {}", step, step));
        EXPECT_EQ(calls.back(), fmt::format("{} Done: {} samples", samples % step, samples));
        EXPECT_THROW(SoundFont(soundFont(headers), 0), Cancelled);
    }
}

TEST(SoundFont, RejectsBanksThatCannotSound)
{
    const std::string good = soundFont(sample("a", 0, 9));
    const auto broken = [&good](const std::string& at, std::size_t skip, const std::string& with) {
        return SoundFont(std::string(good).replace(good.find(at) + skip, with.size(), with)).error;
    };
    for (const std::string id : {"sdta", "smpl", "pdta", "INFO", "shdr", "inst", "ibag", "igen"})
        EXPECT_EQ(broken(id, 0, "none"), "f: is missing the chunk \"" + id + "\"");
    EXPECT_EQ(broken("RIFF", 0, "r"), "f: is not a RIFF file");
    EXPECT_EQ(broken("shdr", 4, "."), "f: has no instruments") << "46 bytes";
    EXPECT_EQ(broken("inst", 50, "c"), "none") << "zones after the last";
    EXPECT_EQ(broken("inst", 28, "c"), "f, byte 280: the indices in \"inst\" decrease");
    EXPECT_EQ(broken("ibag", 8, "c"), "f, byte 332: the indices in \"ibag\" decrease");
}

TEST(SoundFont, SoundsInTune)
{
    SoundFont font(soundFont(sample("A", 100, 48'100, 69, 1, 44'100),
                             std::string(200, '\0') + points(sine(440, 1.1, 44'100))));
    EXPECT_NEAR(font.centsOff(76, 440), 0.0, 0.25);
}

} // namespace velmora
