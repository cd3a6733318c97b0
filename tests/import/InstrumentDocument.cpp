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

#include <cmath>

namespace {

using organ::list;
using organ::row;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

constexpr double kRate = 48000.0;

/// Rank 7 has pipes on keys 60, 62 and 64, the last without its file; rank 8 two on 69, and one
/// without a key.
std::string xmlOrgan(const std::string& number, const std::string& licence)
{
    std::string pipes;
    std::string layers;
    std::string attacks;
    const char* const keys[][3] = {{"1", "7", "60"}, {"2", "7", "62"},  {"3", "7", "64"},
                                   {"4", "8", "69"}, {"5", "8", "200"}, {"6", "8", "69"}};
    for (const auto& [id, rank, note] : keys) {
        pipes += row("o", {{"a", id}, {"b", rank}, {"d", note}});
        layers += row("o", {{"a", id}, {"b", id}});
        attacks += row("o", {{"b", id}, {"c", id}});
    }
    const auto sample = [&](const char* id, const char* file) {
        return row("o", {{"a", id}, {"b", "5"}, {"c", file}, {"h", licence}});
    };
    return organ::file(
        list("_General", row("_General", {{"Identification_Name", "St. Anne"},
                                          {"Identification_UniqueOrganID", number}})) +
        list("Rank", row("o", {{"a", "7"}, {"b", "Flute"}})) + list("Pipe_SoundEngine01", pipes) +
        list("Pipe_SoundEngine01_Layer", layers) +
        list("Pipe_SoundEngine01_AttackSample", attacks) +
        list("Sample", sample("1", "Flute\\C.wav") + sample("2", "Flute\\C.wav") +
                           sample("3", "Flute\\none.wav") + sample("4", "flute/A.WAV") +
                           sample("5", "x.wav") + sample("6", "Flute\\C.wav")));
}

class InstrumentDocumentTest : public testing::Test {
protected:
    std::filesystem::path writeXml(const std::string& number = "123",
                                   const std::string& licence = "0") const
    {
        for (const std::string package : {"000123", "5 other"}) {
            folder_.writeSine("OrganInstallationPackages/" + package + "/flute/c.WAV", 500.0);
            folder_.writeSine("OrganInstallationPackages/" + package + "/flute/a.wav", 880.0);
        }
        return folder_.write("OrganDefinitions/anne.Organ_Hauptwerk_xml",
                             xmlOrgan(number, licence));
    }

    bool read(const std::filesystem::path& path)
    {
        return document_.readFromURL(path, InstrumentDocument::typeOf(path), host_);
    }

    const ALInstrument& instrument() const
    {
        return dynamic_cast<const ALInstrument&>(*document_.getInstrument());
    }

    const Sample& sample(std::size_t stop, std::size_t key) const
    {
        return instrument().stops().at(stop).samples.at(key);
    }

    unsigned bufferOf(std::size_t stop, std::size_t key) const
    {
        int buffer = 0;
        alGetSourcei(sample(stop, key).source(), AL_BUFFER, &buffer);
        return static_cast<unsigned>(buffer);
    }

    std::string spelt(const std::string& name) const { return (folder_.path() / name).string(); }

    /// The cents by which a key of the first stop is off the pitch that it is to have.
    double centsOff(const Temperament& temperament, std::size_t key, double hertzOfSample)
    {
        document_.getInstrument()->tune(temperament, 0, 127);
        document_.getInstrument()->play(static_cast<int>(key), 1.0F);
        const Stereo sound = rendered(loopback_, 24'000);
        document_.getInstrument()->stop(static_cast<int>(key));
        document_.getInstrument()->fade(0.0);
        const double hertz = temperament.getPitch(key) / sample(0, key).rootPitch() * hertzOfSample;
        return cents(measuredHertz(std::span(sound.left).subspan(4'000), kRate, hertz), hertz);
    }

    OpenALLoopback loopback_{kRate};
    OrganFolder folder_;
    RecordingHost host_;
    InstrumentDocument document_;
};

TEST_F(InstrumentDocumentTest, LoadsAnXmlOrgan)
{
    ASSERT_TRUE(read(writeXml())) << document_.errorString();
    EXPECT_EQ(document_.getName(), "St. Anne");
    EXPECT_EQ(instrument().stops().at(0).name + "|" + instrument().stops().at(1).name, "Flute|");
    EXPECT_EQ(instrument().getVolume(0), 1.0F);
    EXPECT_EQ(instrument().getVolume(1), 0.0F);
    EXPECT_EQ(document_.getSize(), 4 * 192'000) << "a shared sound counts each time";
    EXPECT_THAT(host_.calls,
                ElementsAre("start 6", "1 Flute\\C.wav", "1 Flute\\C.wav", "1 Flute\\none.wav",
                            "1 flute/A.WAV", "1 x.wav", "1 Flute\\C.wav", "0 Done 6"));

    const ImportReport& report = document_.report();
    EXPECT_EQ(report.ranks, 2U);
    EXPECT_EQ(report.pipes, 4U);
    EXPECT_EQ(report.samples, 2U);
    EXPECT_THAT(report.skipped,
                ElementsAre(Pair("pipe 5", "is for MIDI note 200, which does not exist"),
                            Pair(spelt("OrganInstallationPackages/000123/flute/none.wav"),
                                 HasSubstr("No such file"))));

    for (const std::size_t key : {0U, 59U, 60U, 62U, 63U, 127U})
        EXPECT_EQ(bufferOf(0, key), bufferOf(0, 60)) << key;
    EXPECT_EQ(bufferOf(1, 69), bufferOf(0, 60)) << "the later of two pipes on a key";
    EXPECT_NE(bufferOf(1, 70), bufferOf(0, 60)) << "but the first of them goes beyond";
    EXPECT_EQ(bufferOf(1, 0), bufferOf(1, 70));
    EXPECT_EQ(sample(0, 61).source(), 0U) << "between the pipes";
    EXPECT_EQ(sample(0, 0).rootPitch(), equal.getPitch(60));
    EXPECT_EQ(sample(0, 127).rootPitch(), equal.getPitch(62));
    EXPECT_EQ(instrument().stops().at(0).extended.count(), 60U + 65U);

    for (const std::size_t key : {48U, 60U, 62U})
        EXPECT_NEAR(centsOff(Temperament::Meantone(), key, 500.0), 0.0, key == 48 ? 0.5 : 0.25)
            << key << ": OpenAL's steps count for more where it plays at half the speed";
}

TEST_F(InstrumentDocumentTest, FallsBackToThePackagesOfTheSamples)
{
    ASSERT_TRUE(read(writeXml("77"))) << document_.errorString();
    EXPECT_EQ(document_.report().samples, 2U);
    EXPECT_TRUE(instrument().sounds.contains("5/Flute\\C.wav"));
}

/// Stop 1 has pipes on keys 45 and 47 and placeholders; the second section is for a stop 3.
std::string textOrgan(const std::string& lineEnd)
{
    std::string result;
    for (const char* const line :
         {"[Organ]", "ChurchName=Sch\xF6ntal", "[Manual001]", "FirstAccessibleKeyMIDINoteNumber=36",
          "[Stop001]", "Name=Principal", "Pipe010=flute\\C.wav", "Pipe011=DUMMY",
          "Pipe012=Flute/A.wav", "Pipe013=REF:1:1:1", "Pipe099=flute\\c.wav", "[Stop003]",
          "Pipe001=flute\\c.wav", "[End]"})
        result += line + lineEnd;
    return result;
}

TEST_F(InstrumentDocumentTest, LoadsAnOrganOfVersion1WithAnyLineEnds)
{
    folder_.writeSine("flute/c.WAV", 500.0);
    folder_.writeSine("flute/a.wav", 880.0);
    const std::string files[] = {textOrgan("\r\n"), textOrgan("\n"), textOrgan("?\n"),
                                 "\xEF\xBB\xBF" + textOrgan("\r\n")};
    for (const std::string& file : files) {
        host_.calls.clear();
        ASSERT_TRUE(read(folder_.write("anne.organ", file))) << document_.errorString();
        EXPECT_EQ(document_.getName(), "Sch\u00F6ntal");
        EXPECT_EQ(instrument().numStops(), 2U);
        EXPECT_EQ(instrument().stops().at(0).name, "Principal");
        EXPECT_THAT(host_.calls,
                    ElementsAre("start 6", "1 flute\\C.wav", "1 DUMMY", "1 Flute/A.wav",
                                "1 REF:1:1:1", "1 flute\\c.wav", "1 flute\\c.wav", "0 DONE"));
        EXPECT_EQ(document_.report().pipes, 2U);
        EXPECT_EQ(document_.report().samples, 2U);
        EXPECT_EQ(document_.report().ranks, 1U);
        EXPECT_THAT(document_.report().skipped,
                    ElementsAre(Pair("Stop001 Pipe011", "names no file: \"DUMMY\""),
                                Pair("Stop001 Pipe013", "names no file: \"REF:1:1:1\""),
                                Pair("Stop001 Pipe099", HasSubstr("MIDI note 134")),
                                Pair("Stop003 Pipe001", HasSubstr("does not follow"))));
        EXPECT_EQ(bufferOf(0, 0), bufferOf(0, 45));
        EXPECT_EQ(bufferOf(0, 127), bufferOf(0, 47));
        EXPECT_EQ(sample(0, 46).source(), 0U);
        float pitch = 0.0F;
        alGetSourcef(sample(0, 57).source(), AL_PITCH, &pitch);
        EXPECT_FLOAT_EQ(pitch, std::exp2(10.0F / 12.0F)) << "tuned from the beginning";
    }
    EXPECT_NEAR(centsOff(equal, 45, 500.0), 0.0, 0.25);
    EXPECT_NEAR(centsOff(equal, 33, 500.0), 0.0, 0.5) << "at half the speed";
}

TEST_F(InstrumentDocumentTest, RefusesWhatCannotSoundAndStaysAsItWas)
{
    ASSERT_TRUE(read(writeXml()));
    const Instrument* const before = document_.getInstrument();
    const struct {
        std::filesystem::path path;
        std::string sentence;
    } rows[] = {
        {folder_.path() / "none.organ", "none.organ: cannot be read (No such file or directory)"},
        {folder_.path() / "none.exs", "none.exs: cannot be read"},
        {folder_.write("b/empty.organ", ""),
         "empty.organ: has no pipe with a sample file, and so nothing to sound"},
        {folder_.write("b/lost.organ", textOrgan("\r\n")),
         "lost.organ: has nothing to sound: of 2 sample files none can be decoded, such as " +
             spelt("b/Flute/A.wav")},
        {folder_.write("b/broken.xml", "<?xml?>\n<a x=1>"),
         "broken.xml, line 2: the value of an attribute is not in double quotes"},
        {writeXml("123", "1"), "anne.Organ_Hauptwerk_xml: cannot be loaded: its samples are "
                               "encrypted and need a licence"},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(read(row.path)) << row.path;
        EXPECT_THAT(document_.errorString(), testing::StartsWith(row.sentence));
    }
    EXPECT_EQ(document_.getInstrument(), before);
    EXPECT_EQ(document_.getName(), "St. Anne");
}

TEST_F(InstrumentDocumentTest, LeavesNothingBehindWhenCancelled)
{
    host_ = RecordingHost(2);
    EXPECT_FALSE(read(writeXml()));
    EXPECT_EQ(document_.errorString(), "");
    EXPECT_EQ(document_.getInstrument(), nullptr);
    EXPECT_THAT(host_.calls, testing::SizeIs(3));
    for (unsigned name = 1; name < 1000; ++name)
        EXPECT_FALSE(alIsSource(name) || alIsBuffer(name)) << name;
}

TEST_F(InstrumentDocumentTest, OpensOtherSamplersFilesWithoutAnInstrument)
{
    EXPECT_TRUE(read(folder_.write("piano.EXS", "")));
    EXPECT_EQ(document_.getInstrument(), nullptr);
    EXPECT_THAT(host_.calls, IsEmpty());
}

} // namespace
