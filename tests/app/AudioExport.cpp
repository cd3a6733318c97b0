#include "app/AudioExport.h"

#include "app/AppDelegate.h"
#include "base/File.h"
#include "platform/AudioFileDecoder.h"
#include "sound/KeyTables.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <QEventLoop>
#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::HasSubstr;

constexpr double kRoot = 261.6255653006; // of key 48 of the organ

class AudioExportTest : public testing::Test {
protected:
    AudioExportTest()
    {
        app_.makeBuiltinTunings();
        app_.selectTuning("Quartercomma Meantone");
        Note note;
        note.key = 52;
        note.length = 60.0;
        note.velocity = 1.0F;
        sequence_.notes = {note};
        folder_.writeSine("a.wav", kRoot);
        organ_ = folder_.write("test.organ",
                               "[Organ]\nChurchName=Test\n[Manual001]\n"
                               "FirstAccessibleKeyMIDINoteNumber=48\n[Stop001]\nPipe001=a.wav\n");
    }

    void loadOrgan()
    {
        auto document = std::make_unique<InstrumentDocument>();
        EXPECT_TRUE(document->readFromURL(organ_, "Organ", app_));
        app_.addInstrument(std::move(document));
    }

    void loadPlayer()
    {
        app_.makeMIDIPlayer(
            std::make_unique<Synthesizer>(48000.0, std::vector<std::filesystem::path>{}));
        app_.setMIDIProgram(kSteadyProgram);
    }

    /// What the export comes to: "written", or the reason why not.
    std::string exported(const std::string& name, double tempo = 120.0, bool cancel = false)
    {
        std::string outcome;
        QEventLoop loop;
        AudioExport job;
        QObject::connect(&job, &AudioExport::progressed, &loop, [&](const QString&, double done) {
            done_.push_back(done);
            if (cancel)
                job.cancel();
        });
        QObject::connect(&job, &AudioExport::finished, &loop, [&](bool isWritten, const auto& why) {
            outcome = isWritten ? "written" : "not: " + why.toStdString();
            loop.quit();
        });
        job.start(currentSettings(app_), sequence_, tempo, folder_.path() / name);
        loop.exec();
        return outcome;
    }

    /// The hertz of a second of the exported file.
    double hertzOf(const std::string& name, double nearHertz)
    {
        const Pcm pcm = decodeAudio(readFile(folder_.path() / name));
        seconds_ = static_cast<double>(pcm.samples.size()) / 2.0 / pcm.rate;
        std::vector<float> left;
        for (std::size_t i = 9600; i < 57600; ++i)
            left.push_back(pcm.samples.at(2 * i));
        return measuredHertz(left, pcm.rate, nearHertz);
    }

    OrganFolder folder_;
    std::filesystem::path organ_;
    OpenALLoopback live_{48000.0};
    AppDelegate app_;
    UnsavedSequence sequence_;
    std::vector<double> done_;
    double seconds_ = 0.0;
};

} // namespace

TEST_F(AudioExportTest, SoundsAsItDoesLiveAndLeavesThatAlone)
{
    const double wanted = Temperament::Meantone().getPitch(52);
    loadPlayer();
    EXPECT_EQ(exported("player.wav", 240.0), "written");
    EXPECT_NEAR(cents(hertzOf("player.wav", wanted / 2.0), wanted / 2.0), 0.0, 3.0)
        << "the bank's own deviation; equal temperament is off by 14";
    EXPECT_NEAR(seconds_, 92.0 / 30.0 + 1.0, 0.01) << "60 steps and 32, at 30 a second";

    loadOrgan();
    app_.keyOn(48, 1.0F);
    EXPECT_EQ(exported("organ.flac"), "written");
    EXPECT_NEAR(cents(hertzOf("organ.flac", wanted), wanted), 0.0, 0.5);
    EXPECT_EQ(done_.back(), 1.0);
    EXPECT_EQ(noteStates[48], 1);
    const Stereo heard = rendered(live_, 24'000);
    EXPECT_NEAR(cents(measuredHertz(heard.left, 48000.0, kRoot), kRoot), 0.0, 0.5)
        << "still at its beginning";
}

TEST_F(AudioExportTest, LeavesNoFileUnlessItIsWhole)
{
    loadOrgan();
    folder_.write("out.wav", "precious");
    EXPECT_EQ(exported("out.wav", 120.0, true), "not: ");
    EXPECT_EQ(readTextFile(folder_.path() / "out.wav"), "precious");
    EXPECT_THAT(exported("out.mp3"), HasSubstr("must end in .wav, .flac or .ogg"));
    std::filesystem::remove(organ_);
    EXPECT_THAT(exported("out.wav"), HasSubstr("test.organ: cannot be read"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 2)
        << "the sample and the file that was there";
}
