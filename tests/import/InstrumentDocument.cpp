#include "import/InstrumentDocument.h"

#include "platform/OpenALLoopback.h"
#include "sound/ALInstrument.h"
#include "support/OrganFolder.h"
#include "support/Pitch.h"
#include "support/RecordingHost.h"
#include "support/Stereo.h"
#include "tuning/Temperament.h"

#include <al.h>
#include <gmock/gmock.h>

#include <regex>
#include <spdlog/fmt/fmt.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

constexpr double kRate = 48000.0;

/// Stop 1 has pipes on keys 45 and 47 and placeholders; the second section is for a stop 3.
const std::string kTextOrgan = "[Organ]\nChurchName=Sch\xF6ntal\n"
                               "[Manual001]\nFirstAccessibleKeyMIDINoteNumber=36\n"
                               "[Stop001]\nName=Principal\nPipe010=flute\\C.wav\nPipe011=DUMMY\n"
                               "Pipe012=Flute/A.wav\nPipe013=REF:1:1:1\nPipe099=flute\\c.wav\n"
                               "[Stop003]\nPipe001=flute\\c.wav\n[End]\n";

int bufferOf(const Sample& sample)
{
    int buffer = 0;
    alGetSourcei(sample.source(), AL_BUFFER, &buffer);
    return buffer;
}

class InstrumentDocumentTest : public testing::Test {
protected:
    /// An organ whose rank 7 has pipes on keys 60, 62 and 64, the last without its file; rank 8 has
    /// two on key 69, and one without a key.
    std::filesystem::path writeXml(const std::string& number, const std::string& licence) const
    {
        for (const std::string package : {"000123", "5 other"}) {
            folder_.writeSine("OrganInstallationPackages/" + package + "/flute/c.WAV", 500.0);
            folder_.writeSine("OrganInstallationPackages/" + package + "/flute/a.wav", 880.0);
        }
        const std::vector<std::string> pipes{"a=1,b=7,d=60", "a=2,b=7,d=62",  "a=3,b=7,d=64",
                                             "a=4,b=8,d=69", "a=5,b=8,d=200", "a=6,b=8,d=69"};
        const std::vector<std::string> links{"a=1,b=1,c=1", "a=2,b=2,c=2", "a=3,b=3,c=3",
                                             "a=4,b=4,c=4", "a=5,b=5,c=5", "a=6,b=6,c=6"};
        const std::string c = ",b=5,c=Flute\\C.wav,h=" + licence;
        const auto lists = xmlOrganDefinition(
            {{"_General", {"Identification_Name=St. Anne,Identification_UniqueOrganID=" + number}},
             {"Rank", {"a=7,b=Flute"}},
             {"Pipe_SoundEngine01", pipes},
             {"Pipe_SoundEngine01_Layer", links},
             {"Pipe_SoundEngine01_AttackSample", links},
             {"Sample",
              {"a=1" + c, "a=2" + c, "a=3,c=Flute\\none.wav", "a=4,b=5,c=flute/A.WAV",
               "a=5,c=x.wav", "a=6" + c}}});
        return folder_.write("OrganDefinitions/anne.Organ_Hauptwerk_xml", lists);
    }

    bool read(const std::filesystem::path& path)
    {
        return document_.readFromURL(path, InstrumentDocument::typeOf(path), host_);
    }

    /// What the document holds, in a line.
    std::string summary() const
    {
        const ImportReport& report = document_.report();
        return fmt::format("{}, {}: {} ranks, {} pipes, {} samples", document_.getName(),
                           instrument().stops().at(0).name, report.ranks, report.pipes,
                           report.samples);
    }

    const ALInstrument& instrument() const
    {
        return dynamic_cast<const ALInstrument&>(*document_.getInstrument());
    }

    /// For each key "A" where it sounds as the first key of the first stop, else "B"; "-": silent.
    std::string soundsOn(std::size_t stop, const std::vector<std::size_t>& keys) const
    {
        const Sample& first = instrument().stops().at(0).samples.at(0);
        std::string result;
        for (const std::size_t key : keys) {
            const Sample& sample = instrument().stops().at(stop).samples.at(key);
            result += sample.source() == 0 ? '-' : bufferOf(sample) == bufferOf(first) ? 'A' : 'B';
        }
        return result;
    }

    /// The cents by which a key of the first stop is off, whose sample is of 500 Hz on key `root`.
    double centsOff(const Temperament& temperament, std::size_t key, std::size_t root)
    {
        document_.getInstrument()->tune(temperament, 0, 127);
        document_.getInstrument()->play(static_cast<int>(key), 1.0F);
        const Stereo sound = rendered(loopback_, 24'000);
        document_.getInstrument()->fade(0.0);
        const double hertz = temperament.getPitch(key) / equal.getPitch(root) * 500.0;
        return cents(measuredHertz(std::span(sound.left).subspan(4'000), kRate, hertz), hertz);
    }

    OpenALLoopback loopback_{kRate};
    OrganFolder folder_;
    RecordingHost host_;
    InstrumentDocument document_;
};

TEST_F(InstrumentDocumentTest, LoadsAnXmlOrgan)
{
    ASSERT_TRUE(read(writeXml("123", "0"))) << document_.errorString();
    EXPECT_EQ(summary(), "St. Anne, Flute: 2 ranks, 4 pipes, 2 samples");
    EXPECT_EQ(instrument().getVolume(1), 0.0F) << "just the first stop is heard";
    EXPECT_EQ(document_.getSize(), 4 * 192'000) << "a shared sound counts each time";
    EXPECT_THAT(host_.calls,
                ElementsAre("start 6", "1 Flute\\C.wav", "1 Flute\\C.wav", "1 Flute\\none.wav",
                            "1 flute/A.WAV", "1 x.wav", "1 Flute\\C.wav", "0 Done 6"));
    EXPECT_THAT(document_.report().skipped,
                ElementsAre(Pair("pipe 5", "is for MIDI note 200, which does not exist"),
                            Pair(HasSubstr("/000123/flute/none.wav"), HasSubstr("No such file"))));
    EXPECT_EQ(soundsOn(0, {0, 59, 60, 61, 62, 63, 127}), "AAA-AAA");
    EXPECT_EQ(soundsOn(1, {0, 69, 70}), "BAB") << "the first of two pipes on a key goes beyond";
    EXPECT_EQ(instrument().stops().at(0).extended.count(), 60U + 65U);
    EXPECT_NEAR(centsOff(Temperament::Meantone(), 62, 62), 0.0, 0.25);
    EXPECT_NEAR(centsOff(Temperament::Meantone(), 48, 60), 0.0, 0.5) << "at half the speed";

    ASSERT_TRUE(read(writeXml("77", "0"))) << document_.errorString();
    EXPECT_TRUE(instrument().sounds.contains("5/Flute\\C.wav")) << "the package of the samples";
}

TEST_F(InstrumentDocumentTest, LoadsAnOrganOfVersion1WithAnyLineEnds)
{
    folder_.writeSine("flute/c.WAV", 500.0);
    folder_.writeSine("flute/a.wav", 880.0);
    for (const std::string lineEnd : {"\r\n", "\n", "?\n"}) {
        const auto file = std::regex_replace(kTextOrgan, std::regex("\n"), lineEnd);
        host_.calls.clear();
        ASSERT_TRUE(read(folder_.write("anne.organ", file))) << document_.errorString();
        EXPECT_EQ(summary(), "Sch\u00F6ntal, Principal: 1 ranks, 2 pipes, 2 samples") << lineEnd;
        EXPECT_THAT(host_.calls,
                    ElementsAre("start 6", "1 flute\\C.wav", "1 DUMMY", "1 Flute/A.wav",
                                "1 REF:1:1:1", "1 flute\\c.wav", "1 flute\\c.wav", "0 DONE"));
        EXPECT_THAT(document_.report().skipped,
                    ElementsAre(Pair("Stop001 Pipe011", "names no file: \"DUMMY\""),
                                Pair("Stop001 Pipe013", "names no file: \"REF:1:1:1\""),
                                Pair("Stop001 Pipe099", HasSubstr("MIDI note 134")),
                                Pair("Stop003 Pipe001", HasSubstr("does not follow"))));
        EXPECT_EQ(soundsOn(0, {0, 45, 46, 47, 127}), "AA-BB");
    }
    EXPECT_NEAR(centsOff(equal, 45, 45), 0.0, 0.25);
}

TEST_F(InstrumentDocumentTest, RefusesWhatCannotSoundAndStaysAsItWas)
{
    ASSERT_TRUE(read(writeXml("123", "0")));
    const std::pair<std::filesystem::path, std::string> rows[] = {
        {"/none.organ", "none.organ: cannot be read (No such file or directory)"},
        {folder_.write("b/empty.organ", ""), "empty.organ: has no pipe with a sample file"},
        {folder_.write("b/lost.organ", kTextOrgan),
         "lost.organ: has nothing to sound: of 2 sample files none can be decoded, such as /"},
        {folder_.write("b/broken.xml", "<?xml?>\n<a x=1>"), "broken.xml, line 2: the value"},
        {writeXml("123", "1"), "anne.Organ_Hauptwerk_xml: cannot be loaded: its samples are "
                               "encrypted and need a licence"},
    };
    for (const auto& [path, sentence] : rows) {
        EXPECT_FALSE(read(path)) << path;
        EXPECT_THAT(document_.errorString(), testing::StartsWith(sentence));
    }
    EXPECT_EQ(summary(), "St. Anne, Flute: 2 ranks, 4 pipes, 2 samples");
}

TEST_F(InstrumentDocumentTest, LeavesNothingBehindWhenCancelled)
{
    host_ = RecordingHost(2);
    EXPECT_FALSE(read(writeXml("123", "0")));
    EXPECT_EQ(document_.errorString(), "");
    EXPECT_EQ(document_.getInstrument(), nullptr);
    EXPECT_THAT(host_.calls, testing::SizeIs(3));
    for (unsigned name = 1; name < 1000; ++name)
        EXPECT_FALSE(alIsSource(name) || alIsBuffer(name)) << name;
}

} // namespace
