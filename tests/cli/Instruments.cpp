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
    }

    /// Runs the program in the folder and gives what it prints.
    std::string velmora(const QStringList& words, int code = 0)
    {
        QProcess process;
        process.setWorkingDirectory(QString::fromStdString(folder_.path().string()));
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(VELMORA_PROGRAM, words);
        EXPECT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitCode(), code) << words.join(' ').toStdString();
        return process.readAllStandardOutput().toStdString();
    }

    OrganFolder folder_;
    const QStringList render_ = {"render", "song.mid", "-o", "out.wav", "--instrument"};
};

TEST_F(Instruments, AreRenderedInTune)
{
    velmora(render_ +
            QStringList{"test.organ", "--tuning", "Quartercomma Meantone", "--stop", "1=0.25"});
    const Pcm heard = decodeAudioFile(folder_.path() / "out.wav");
    std::vector<float> left;
    for (std::size_t i = 4800; i < 52800; ++i)
        left.push_back(heard.samples.at(2 * i));
    for (const double partial : {1.0, 3.0}) {
        const double wanted = partial * Temperament::Meantone().getPitch(52);
        EXPECT_NEAR(cents(measuredHertz(left, 48000.0, wanted), wanted), 0.0, 0.25) << partial;
    }
}

TEST_F(Instruments, AreDescribed)
{
    const std::string text = velmora({"info", "test.organ"});
    EXPECT_THAT(text, HasSubstr("Test: Organ instrument of 2 stops, 384000 bytes of sound\n"));
    EXPECT_THAT(text, HasSubstr("Loaded 2 ranks, 2 pipes, 2 samples; skipped 1\n"));
    const Json organ = Json::parse(velmora({"info", "test.organ", "--json"}));
    EXPECT_EQ(organ["stops"][0]["keys"][48], Json::parse(R"({"key": 48, "frames": 96000,
        "rootPitch": 261.6255653006, "rate": 48000, "channels": 1, "shared": true,
        "extended": false})"));
    EXPECT_EQ(organ["stops"][0]["keys"][127]["extended"], true);
    EXPECT_THAT(organ["report"]["skipped"][0]["file"], HasSubstr("missing.wav"));
    EXPECT_EQ(Json::parse(velmora({"info", kBank.c_str(), "--json"}))["kind"], "SoundFont");
}

TEST_F(Instruments, AreRefusedWithASentence)
{
    const std::tuple<QStringList, int, std::string> rows[] = {
        {{"missing.sf2"}, 1, "velmora: missing.sf2: cannot be read"},
        {{"song.mid"}, 2, "there is no instrument \"song.mid\""},
        {{"test.organ", "--program", "3"}, 2, "--program"},
        {{"test.organ", "--stop", "2=1"}, 2, "numbered from 0 to 1"}};
    for (const auto& [words, code, sentence] : rows)
        EXPECT_THAT(velmora(render_ + words, code), HasSubstr(sentence));
    EXPECT_FALSE(std::filesystem::exists(folder_.path() / "out.wav"));
}

} // namespace
