#include "app/AudioExport.h"

#include "app/AppDelegate.h"
#include "app/generalMidiBanks.h"
#include "audio/AudioFileDecoder.h"
#include "base/File.h"
#include "support/Bank.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <QEventLoop>
#include <gmock/gmock.h>

namespace velmora {

namespace {

constexpr double kRootHertz = 261.6255653006; // Hertz; key 48 of the organ.

class AudioExportTest : public testing::Test {
protected:
    AudioExportTest()
    {
        app_.tunings().addBuiltins();
        app_.tunings().select("Quartercomma Meantone");
        sequence_.notes = {{.length = 60.0, .velocity = 1.0F, .key = 52}};
        folder_.writeSine("a.wav", kRootHertz);
        const auto organ = folder_.write(
            "test.organ", "[Organ]\nChurchName=Test\n[Manual001]\n"
                          "FirstAccessibleKeyMIDINoteNumber=48\n[Stop001]\nPipe001=a.wav\n");
        auto document = std::make_unique<InstrumentDocument>();
        EXPECT_TRUE(document->read(organ, InstrumentFormat::Hauptwerk1, {Reading::Plain}, app_));
        app_.addInstrument(std::move(document));
    }

    /// Runs an export and returns "written", or "not: " and the reason.
    std::string exported(const std::string& name, double speed = 1.0, bool cancel = false)
    {
        return exported({{folder_.path() / name}}, speed, cancel);
    }

    std::string exported(const std::vector<SoundTarget>& targets, double speed = 1.0,
                         bool cancel = false)
    {
        std::string outcome;
        QEventLoop loop;
        AudioExport job;
        QObject::connect(&job, &AudioExport::progressed, &loop, [&](const QString&, double done) {
            done_ = done;
            if (cancel)
                job.cancel();
        });
        QObject::connect(&job, &AudioExport::finished, &loop, [&](bool isWritten, const auto& why) {
            outcome = isWritten ? "written" : "not: " + why.toStdString();
            loop.quit();
        });
        job.start(currentSettings(app_), sequence_, speed, targets);
        loop.exec();
        return outcome;
    }

    /// Returns a second of the left channel and sets `seconds_` to the length of the file.
    std::vector<float> soundOf(const std::string& name)
    {
        const Pcm pcm = decodeAudio(readFile(folder_.path() / name));
        seconds_ = static_cast<double>(pcm.size()) / 2.0 / pcm.rate;
        std::vector<float> left;
        for (std::size_t i = 9600; i < 57600; ++i)
            left.push_back(pcm.floats.at(2 * i));
        return left;
    }

    static double centsOff(const std::vector<float>& sound, double hertz)
    {
        return cents(measuredHertz(sound, 48000.0, hertz), hertz);
    }

    OrganFolder folder_;
    AppDelegate app_;
    UnsavedSequence sequence_;
    double done_ = 0.0, seconds_ = 0.0;
};

} // namespace

TEST_F(AudioExportTest, SoundsLikeLivePlayingAndDoesNotDisturbIt)
{
    const double hertz = Temperament::Meantone().getPitch(52);
    app_.makeMIDIPlayer(std::make_unique<Synthesizer>(48000.0, generalMidiBanks()));
    app_.setMIDIProgram(kSteadyProgram);
    EXPECT_EQ(exported("player.wav", 2.0), "written");
    EXPECT_NEAR(centsOff(soundOf("player.wav"), hertz / 2.0), 0.0, 3.0)
        << "the bank's own deviation; equal temperament is off by 14";
    EXPECT_NEAR(seconds_, 92.0 / 32.0 + 1.0, 0.01) << "60 steps and 32, at 32 a second";

    app_.selectInstrument(0);
    app_.setVolumeOfStop(0, 0.25F);
    app_.keyOn(48, 1.0F);
    EXPECT_EQ(exported("organ.flac"), "written");
    const auto sound = soundOf("organ.flac");
    EXPECT_NEAR(centsOff(sound, hertz), 0.0, 0.5);
    EXPECT_EQ(done_, 1.0);
    EXPECT_EQ(app_.player().liveKeys().state(48), kPressed);
    const Stereo live = rendered(app_.engine(), 48'000);
    EXPECT_NEAR(centsOff(live.left, kRootHertz), 0.0, 0.5) << "still at its beginning";
    EXPECT_NEAR(peak(sound), peak(live.left), 0.01);

    app_.keyOff(48);
    app_.selectInstrument(1);
    for (int i = 0; i < 40; ++i)
        app_.player().fade();
    EXPECT_TRUE(app_.unloadInstrument(0)) << "the released key has died away";
}

TEST_F(AudioExportTest, VoicesTogetherSoundLikeThePiece)
{
    app_.makeMIDIPlayer(std::make_unique<Synthesizer>(48000.0, generalMidiBanks()));
    app_.tunings().select("Pure");
    sequence_.notes.clear();
    for (const auto& [channel, key] : {std::pair{0U, 60U}, {1U, 64U}, {2U, 67U}, {5U, 70U}})
        sequence_.notes.push_back({.start = 4.0 * channel,
                                   .length = 24.0,
                                   .velocity = 0.4F,
                                   .channel = channel,
                                   .key = key});
    sequence_.voices[0].name = "Viola/1";
    sequence_.voices[0].sound.preset = {.number = 41};
    sequence_.voices[1].name = "Horn";
    sequence_.voices[1].sound.preset = {.number = 60};
    sequence_.voices[5].name = "horn";
    sequence_.voices[2].name = "Muted";
    sequence_.voices[2].isMuted = true;
    sequence_.voices[7].name = "Empty";
    const auto stems = stemsOf(sequence_, folder_.path(), "Trio", ".wav");
    std::vector<std::string> names;
    for (const SoundTarget& stem : stems)
        names.push_back(stem.file.filename());
    EXPECT_THAT(names, testing::ElementsAre("Trio - Viola_1.wav", "Trio - Horn 2.wav",
                                            "Trio - horn 6.wav"));

    EXPECT_EQ(exported(stems, 1.0, true), "not: ");
    EXPECT_FALSE(std::filesystem::exists(stems[0].file)) << "all of them or none";
    EXPECT_EQ(exported(stems), "written");
    EXPECT_EQ(exported("whole.wav"), "written");
    std::vector<float> sum = decodeAudio(readFile(folder_.path() / "whole.wav")).floats;
    const float loudest = peak(sum);
    for (const std::string& name : names) {
        const auto part = decodeAudio(readFile(folder_.path() / name)).floats;
        ASSERT_EQ(part.size(), sum.size());
        EXPECT_GT(peak(part), loudest / 20.0F) << name;
        std::ranges::transform(sum, part, sum.begin(), std::minus());
    }
    EXPECT_LT(peak(sum), 1e-3F);
}

TEST_F(AudioExportTest, LeavesOnlyCompleteFiles)
{
    folder_.write("out.wav", "precious");
    EXPECT_EQ(exported("out.wav", 1.0, true), "not: ");
    EXPECT_EQ(readTextFile(folder_.path() / "out.wav"), "precious");
    EXPECT_THAT(exported("out.aiff"),
                testing::HasSubstr("must end in .wav, .flac, .ogg, .opus or .mp3"));
    std::filesystem::remove(folder_.path() / "test.organ");
    EXPECT_THAT(exported("out.wav"), testing::HasSubstr("test.organ: cannot be read"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 2)
        << "the sample and the file from before";
}

} // namespace velmora
