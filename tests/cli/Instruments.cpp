// The program with sampled instruments, as it is called from a shell.

#include "platform/AudioFileDecoder.h"
#include "platform/MidiBytes.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <QProcess>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using Json = nlohmann::json;
using testing::HasSubstr;

namespace {

constexpr double kRoot = 261.6255653006; // of key 48

class Instruments : public testing::Test {
protected:
    Instruments()
    {
        folder_.writeSine("pipes/a.wav", kRoot);
        folder_.writeSine("pipes/b.wav", 3.0 * kRoot); // a twelfth
        folder_.write("test.organ",
                      "[Organ]\r\nChurchName=Test\r\n"
                      "[Manual001]\r\nFirstAccessibleKeyMIDINoteNumber=48\r\n"
                      "[Stop001]\r\nPipe001=pipes\\a.wav\r\nPipe002=pipes\\missing.wav\r\n"
                      "[Stop002]\r\nPipe001=pipes\\b.wav\r\n");
        folder_.write("song.mid", midi::file(midi::on(0, 52) + midi::off(288, 52)));
        folder_.write("nothing.exs", "");
    }

    /// Runs the program in the folder; what it prints, and its exit code.
    std::pair<std::string, int> velmora(const QStringList& words)
    {
        QProcess process;
        process.setWorkingDirectory(QString::fromStdString(folder_.path().string()));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(VELMORA_PROGRAM, words);
        EXPECT_TRUE(process.waitForFinished(60'000));
        return {process.readAllStandardOutput().toStdString(), process.exitCode()};
    }

    OrganFolder folder_;
};

} // namespace

TEST_F(Instruments, AreRenderedInTune)
{
    const auto [output, code] =
        velmora({"render", "song.mid", "-o", "out.wav", "--instrument", "test.organ", "--tuning",
                 "Quartercomma Meantone", "--stop", "1=0.25"});
    EXPECT_EQ(code, 0) << output;
    const Pcm heard = decodeAudioFile(folder_.path() / "out.wav");
    ASSERT_EQ(heard.channels, 2);
    std::vector<float> left;
    for (std::size_t i = 4800; i < 52800; ++i)
        left.push_back(heard.samples.at(2 * i));
    const double wanted = Temperament::Meantone().getPitch(52);
    EXPECT_NEAR(cents(measuredHertz(left, 48000.0, wanted), wanted), 0.0, 0.25);
    EXPECT_NEAR(cents(measuredHertz(left, 48000.0, 3.0 * wanted), 3.0 * wanted), 0.0, 0.25)
        << "the second stop";
}

TEST_F(Instruments, AreDescribed)
{
    const auto [text, code] = velmora({"info", "test.organ"});
    EXPECT_EQ(code, 0);
    EXPECT_THAT(text, HasSubstr("Test: Organ instrument of 2 stops, 384000 bytes of sound\n"));
    EXPECT_THAT(text, HasSubstr("stop   0  volume 0.500    1 keys of its own, 127 extended"));
    EXPECT_THAT(text, HasSubstr("Loaded 2 ranks, 2 pipes, 2 samples; skipped 1\n"));

    const Json organ = Json::parse(velmora({"info", "test.organ", "--json"}).first);
    EXPECT_EQ(organ["usage"], 384000);
    EXPECT_EQ(organ["stops"][1]["volume"], 0.0);
    const Json& keys = organ["stops"][0]["keys"];
    EXPECT_EQ(keys[48], Json::parse(R"({"key": 48, "rootPitch": 261.6255653006, "frames": 96000,
        "rate": 48000, "channels": 1, "shared": true, "extended": false})"));
    EXPECT_EQ(keys[127]["extended"], true);
    EXPECT_THAT(organ["report"]["skipped"][0]["file"], HasSubstr("missing.wav"));

    const Json bank = Json::parse(velmora({"info", kBank.c_str(), "--json"}).first);
    EXPECT_EQ(bank["kind"], "SoundFont");
    EXPECT_GT(bank["stops"].size(), 100U);
}

TEST_F(Instruments, AreRefusedWithASentence)
{
    const struct {
        QStringList words;
        int code;
        std::string sentence;
    } rows[] = {
        {{"--instrument", "missing.sf2"}, 1, "velmora: missing.sf2: cannot be read"},
        {{"--instrument", "song.mid"}, 2, "there is no instrument \"song.mid\""},
        {{"--instrument", "nothing.exs"}, 1, "nothing.exs: holds no instrument"},
        {{"--instrument", "test.organ", "--program", "3"}, 2, "--program"},
        {{"--instrument", "test.organ", "--stop", "2=1"}, 2, "numbered from 0 to 1"},
    };
    for (const auto& row : rows) {
        const auto [output, code] =
            velmora(QStringList{"render", "song.mid", "-o", "out.wav"} + row.words);
        EXPECT_EQ(code, row.code) << row.sentence;
        EXPECT_THAT(output, HasSubstr(row.sentence));
    }
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "out.wav"));
}
