#include "import/InstrumentDocument.h"

#include "import/ImportedBank.h"
#include "support/Log.h"
#include "support/OrganFolder.h"

#include <regex>

namespace velmora {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

/// Stop 1 is defined twice; the second definition has pipes on keys 45 and 47, and placeholders.
/// There is no stop 2. The last line is not terminated.
const std::string kTextOrgan = "\xEF\xBB\xBF[Organ]\nChurchName=Sch\xF6ntal\n;ChurchName=\n\nno\n"
                               "[Manual001]\nFirstAccessibleKeyMIDINoteNumber=36\n[\n=\n"
                               "[Stop001]\nPipe001=flute\\C.wav\n[Stop001]\nName=Principal=8\n"
                               "Pipe010=flute\\C.wav\nPipe011=DUMMY\nPipe012=Flute/A.wav\n"
                               "Pipe013=REF:1:1:1\nPipe099=flute\\c.wav\n"
                               "[Stop003]\nPipe001=flute\\c.wav\n[Organ]";

/// The frequency of A in equal temperament if `key` sounds at 500 Hz.
double hertzOfA(std::size_t key)
{
    return 500.0 * equal.getPitch(69) / equal.getPitch(key);
}

class InstrumentDocumentTest : public testing::Test {
protected:
    void writeFlute(const std::string& folder) const
    {
        folder_.writeSine(folder + "c.WAV", 500.0);
        folder_.writeSine(folder + "a.wav", 880.0);
    }

    /// Writes an organ. Rank 7 has pipes on keys 62, 60 (the default) and 64; the file of the last
    /// is missing. Rank 8 has two pipes on key 69, and one on an invalid key.
    std::filesystem::path writeXml(const std::string& number, const std::string& licence) const
    {
        for (const std::string package : {"000123", "5 other"})
            writeFlute("OrganInstallationPackages/" + package + "/flute/");
        std::vector<std::string> layers, attacks;
        for (int pipe = 1; pipe <= 6; ++pipe) {
            layers.push_back(fmt::format("a=1{0},b={0}", pipe));
            attacks.push_back(fmt::format("b=1{0},c=2{0}", pipe));
        }
        const std::string c = ",b=5,c=Flute\\C.wav,h=" + licence;
        const auto lists = xmlOrganDefinition(
            {{"_General", {"Identification_Name=St. Anne,Identification_UniqueOrganID=" + number}},
             {"Rank", {"a=7,b=Flute"}},
             {"Pipe_SoundEngine01",
              {"a=1,b=7,d=62", "a=2,b=7", "a=3,b=7,d=64", "a=4,b=8,d=69", "a=5,b=8,d=200",
               "a=6,b=8,d=69"}},
             {"Pipe_SoundEngine01_Layer", layers},
             {"Pipe_SoundEngine01_AttackSample", attacks},
             {"Sample",
              {"a=21" + c, "a=22" + c, "a=23,c=Flute\\none.wav", "a=24,b=5,c=flute/A.WAV",
               "a=25,c=x.wav", "a=26" + c}}});
        return folder_.write("OrganDefinitions/anne.Organ_Hauptwerk_xml", lists);
    }

    bool read(const std::filesystem::path& path)
    {
        return document_.read(path, instrumentFormatOf(path).value(), {Reading::Plain}, host_);
    }

    /// Describes the document in one line.
    std::string summary() const
    {
        const ImportReport& report = document_.report();
        return fmt::format("{}, {}: {} ranks, {} pipes, {} samples", document_.name(),
                           instrument().stops().at(0).name, report.ranks, report.pipes,
                           report.samples);
    }

    ALInstrument& instrument() const
    {
        return dynamic_cast<ALInstrument&>(*document_.instrument());
    }

    OrganFolder folder_;
    RecordingHost host_;
    InstrumentDocument document_;
};

TEST_F(InstrumentDocumentTest, LoadsAnXmlOrgan)
{
    ASSERT_TRUE(read(writeXml("123", "0"))) << document_.errorString();
    EXPECT_EQ(summary(), "St. Anne, Flute: 2 ranks, 4 pipes, 2 samples");
    EXPECT_EQ(instrument().getVolume(1), 0.0F) << "only the first stop is drawn";
    EXPECT_EQ(document_.size(), 4 * 192'000) << "a shared sound counts each time";
    EXPECT_THAT(host_.calls,
                ElementsAre("start 6", "1 Flute\\C.wav", "1 Flute\\C.wav", "1 Flute\\none.wav",
                            "1 flute/A.WAV", "1 x.wav", "1 Flute\\C.wav", "0 Done 6"));
    EXPECT_THAT(document_.report().skipped,
                ElementsAre(Pair("pipe 5", "is for MIDI note 200, which is outside 0 to 127"),
                            Pair(HasSubstr("/000123/flute/none.wav"), HasSubstr("No such file"))));
    EXPECT_EQ(keysOf(instrument(), 0), "0 Flute\\C.wav 60, 61 -, 62 Flute\\C.wav 62,");
    EXPECT_EQ(keysOf(instrument(), 1), "0 A.WAV 69, 69 Flute\\C.wav 69, 70 A.WAV 69,")
        << "the first of two pipes on a key is extended";
    EXPECT_EQ(instrument().stops().at(0).extended.count(), 60U + 65U);
    EXPECT_NEAR(centsOff(instrument(), 62, hertzOfA(62)), 0.0, 0.25);
    EXPECT_NEAR(centsOff(instrument(), 48, hertzOfA(60)), 0.0, 0.5) << "at half speed";

    ASSERT_TRUE(read(writeXml("77", "0"))) << document_.errorString();
    EXPECT_TRUE(instrument().sounds.contains("5/Flute\\C.wav"))
        << "found in the folder of the package";
}

TEST_F(InstrumentDocumentTest, LoadsAVersion1OrganWithAnyLineEnds)
{
    writeFlute("flute/");
    for (const std::string lineEnd : {"\r\n", "\n", "?\n"}) {
        const auto file = std::regex_replace(kTextOrgan, std::regex("\n"), lineEnd);
        host_.calls.clear();
        ASSERT_TRUE(read(folder_.write("anne.organ", file))) << document_.errorString();
        const std::string name =
            lineEnd == "\n" ? "" : "Sch\u00F6ntal"; // the last section replaces the first
        EXPECT_EQ(summary(), name + ", Principal=8: 1 ranks, 2 pipes, 2 samples") << lineEnd;
        EXPECT_THAT(host_.calls,
                    ElementsAre("start 6", "1 flute\\C.wav", "1 DUMMY", "1 Flute/A.wav",
                                "1 REF:1:1:1", "1 flute\\c.wav", "1 flute\\c.wav", "0 DONE"));
        EXPECT_THAT(document_.report().skipped,
                    ElementsAre(Pair("Stop001 Pipe011", "does not name a file: \"DUMMY\""),
                                Pair("Stop001 Pipe013", "does not name a file: \"REF:1:1:1\""),
                                Pair("Stop001 Pipe099", HasSubstr("MIDI note 134")),
                                Pair("Stop003 Pipe001", HasSubstr("lower number is missing"))));
        EXPECT_EQ(keysOf(instrument(), 0), "0 c.WAV 45, 46 -, 47 a.wav 47,");
    }
    EXPECT_NEAR(centsOff(instrument(), 45, hertzOfA(45)), 0.0, 0.25);
}

TEST_F(InstrumentDocumentTest, ReadsNoSamplesOutsideTheFolderOfTheOrgan)
{
    folder_.writeSine("outside.wav", 500.0);
    folder_.writeSine("set/inside.wav", 500.0);
    folder_.write("set/x/other", "");
    std::filesystem::create_symlink(folder_.path(), folder_.path() / "set" / "link");
    const std::string names = "[Stop001]\r\nPipe001=link\\outside.wav\r\n"
                              "Pipe002=x/../inside.wav\r\nPipe003=..\\Outside.wav\r\n[Organ]";
    ASSERT_TRUE(read(folder_.write("set/anne.organ", names))) << document_.errorString();
    EXPECT_THAT(document_.report().skipped,
                ElementsAre(Pair("Stop001 Pipe001", HasSubstr("outside the folder of the organ")),
                            Pair("Stop001 Pipe003", HasSubstr("outside the folder of the organ"))));
    EXPECT_EQ(document_.report().samples, 1U);
}

TEST_F(InstrumentDocumentTest, HasATitleForPeople)
{
    writeFlute("flute/");
    for (const auto& [name, title] : {std::pair("Sch\xF6ntal", "Sch\u00F6ntal"),
                                      {"anne1.organ", "anne"},
                                      {"anne12.SF2", "anne"},
                                      {"anne 2", "anne 2"},
                                      {"Bells2.sf2", "Bells2"},
                                      {"  ", "anne"}}) {
        const std::string first = kTextOrgan.substr(0, kTextOrgan.rfind('['));
        const auto file = std::regex_replace(first, std::regex("Sch\xF6ntal"), name);
        ASSERT_TRUE(read(folder_.write("anne.organ", file))) << document_.errorString();
        EXPECT_EQ(document_.title(), title) << name;
    }
}

TEST_F(InstrumentDocumentTest, IsUnchangedIfAFileCannotBeRead)
{
    ASSERT_TRUE(read(writeXml("123", "0")));
    const std::pair<std::filesystem::path, std::string> rows[] = {
        {"/none.organ", "none.organ: cannot be read (No such file or directory)"},
        {folder_.write("b/empty.organ", "Pipe001=c.wav\n"),
         "empty.organ: cannot be played: no pipe has a sample file"},
        {folder_.write("b/lost.organ", kTextOrgan), "lost.organ: cannot be played: none of the "
                                                    "2 sample files can be decoded, for example /"},
        {folder_.write("b/broken.xml", "<?xml?>\n<a x=1>"), "broken.xml, line 2: the value"},
        {folder_.write("b/other.xml", "<?xml?><organ></organ>"),
         "other.xml: is not an organ definition"},
        {folder_.write("b/bare.xml", xmlOrganDefinition({{"_General", {}}})),
         "bare.xml: has no object list of the type Pipe_SoundEngine01_Layer"},
        {writeXml("123", "1"), "anne.Organ_Hauptwerk_xml: cannot be loaded: its samples are "
                               "encrypted and need a licence; open an organ without encryption"},
    };
    for (const auto& [path, sentence] : rows) {
        EXPECT_FALSE(read(path)) << path;
        EXPECT_THAT(document_.errorString(), testing::StartsWith(sentence));
    }
    EXPECT_EQ(summary(), "St. Anne, Flute: 2 ranks, 4 pipes, 2 samples");
    EXPECT_THAT(logOf([&] { read("/none.organ"); }),
                AllOf(HasSubstr("Couldn't open File '/none.organ'"),
                      HasSubstr("/none.organ: cannot be read (No such file or directory)")));
}

TEST_F(InstrumentDocumentTest, HasNoInstrumentWhenCancelled)
{
    host_ = RecordingHost(2);
    EXPECT_FALSE(read(writeXml("123", "0")));
    EXPECT_EQ(document_.errorString(), "");
    EXPECT_EQ(document_.instrument(), nullptr);
    EXPECT_THAT(host_.calls, testing::SizeIs(3));
}

} // namespace

} // namespace velmora
