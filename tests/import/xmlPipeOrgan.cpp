#include "import/xmlPipeOrgan.h"

#include "base/FormatError.h"
#include "support/OrganFolder.h"

#include <gmock/gmock.h>
#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

/// Two manuals and a pedal. The swell's flute is also a stop of the pedal, an octave lower.
std::vector<ObjectList> consoleTables()
{
    return {
        {"_General", {"Identification_Name=St. Anne,Identification_UniqueOrganID=123"}},
        {"Division", {"DivisionID=1,Name=Great", "DivisionID=2,Name=Swell", "a=3,b=Pedal,d=30"}},
        {"Keyboard", {"KeyboardID=11", "KeyboardID=12,Hint_PrimaryAssociatedDivisionID=2"}},
        {"Switch", {"SwitchID=71,DefaultToEngaged=Y", "a=72,b=Swell to Great"}},
        {"KeyAction",
         {"SourceKeyboardID=11,DestIsKeyboardNotDivision=N,DestDivisionID=1", "a=12,d=2",
          "a=11,b=Y,c=12,f=72", "a=11,b=Y,c=12,f=72,l=60,m=12", "a=11,d=2,f=71,n=12",
          "a=11,d=1,f=72"}},
        {"Stop",
         {"StopID=5,Name=Principal 8',DivisionID=1,ControllingSwitchID=71",
          "a=6,b=Flute 4',c=2,d=72", "a=7,b=Flute 8',c=3", "a=8,b=Blower,c=99"}},
        {"StopRank", {"StopID=5,RankID=7", "a=6,d=8,h=40,i=10", "a=7,d=8,j=-12", "a=8,d=7"}},
        {"Rank", {"RankID=7,Name=Principal", "a=8,b=Flute"}},
        {"Pipe_SoundEngine01",
         {"PipeID=1,RankID=7", "a=2,b=7,d=62", "a=3,b=8,d=62,f=16", "a=4,b=8,d=200"}},
        {"EnclosurePipe", {"EnclosureID=1,PipeID=3"}},
        {"Pipe_SoundEngine01_Layer",
         {"LayerID=21,PipeID=1,AmpLvl_LevelAdjustDecibels=-20", "a=22,b=2,c=2", "a=23,b=2,d=N,t=4",
          "a=24,b=3"}},
        {"Pipe_SoundEngine01_AttackSample",
         {"UniqueID=91,LayerID=21,SampleID=32,AttackSelCriteria_MinTimeSincePrevPipeCloseMs=0",
          "a=92,b=21,c=31,i=500", "a=93,b=21,c=33,i=500", "a=94,b=21,c=34,h=63", "a=95,b=22,c=33",
          "a=96,b=23,c=31", "a=97,b=24,c=35,j=127", "a=98,b=24,c=31,j=0"}},
        {"Pipe_SoundEngine01_ReleaseSample",
         {"UniqueID=81,LayerID=21,SampleID=31,ReleaseSelCriteria_LatestKeyReleaseTimeMs=99999",
          "b=21,c=33,q=250", "b=21,c=34,q=100,s=95"}},
        {"Sample",
         {"SampleID=31,InstallationPackageID=123,SampleFilename=p\\060-c.wav,"
          "Pitch_ExactSamplePitch=262.5",
          "a=32,b=123,c=p/bis.wav", "a=33,b=5,c=p/short.wav", "a=34,b=123,c=p/soft.wav",
          "a=35,b=123,c=p/trem.wav"}},
    };
}

std::string attacksOf(const PipeOrgan& organ, const PipeOrgan::Pipe& pipe)
{
    std::string result;
    for (const PipeOrgan::Attack& attack : pipe.attacks)
        result += fmt::format("{} {:.3f}-{:.3f}{} ", organ.files.at(attack.file), attack.softest,
                              attack.loudest, attack.hasOwnRelease ? " own" : "");
    for (const PipeOrgan::Release& release : pipe.releases)
        result += fmt::format("release {} {} ", organ.files.at(release.file), release.longestHeld);
    return result;
}

class XmlPipeOrganTest : public testing::Test {
protected:
    XmlPipeOrganTest() { folder_.write("OrganInstallationPackages/000123 St. Anne/p/x", ""); }

    PipeOrgan read(const std::string& definition) const
    {
        return readXmlPipeOrgan(folder_.write("OrganDefinitions/anne.xml", definition));
    }

    OrganFolder folder_;
};

TEST_F(XmlPipeOrganTest, ReadsTheConsole)
{
    const ConsoleDefinition console = read(xmlOrganDefinition(consoleTables())).console;
    std::string text = console.identity + ": ";
    for (const auto& division : console.divisions)
        text += fmt::format("{}{} {}-{}, ", division.name, division.isPedal ? " (pedal)" : "",
                            division.lowestKey, division.highestKey);
    for (const auto& stop : console.stops) {
        text += fmt::format("{}{} in {}:", stop.name, stop.isDrawn ? " drawn" : "", stop.division);
        for (const auto& pipes : stop.pipes)
            text += fmt::format(" {}x{} on {}/{}, ", pipes.firstKey, pipes.count, pipes.rank,
                                pipes.firstPipe);
    }
    for (const auto& coupler : console.couplers)
        text += fmt::format("\"{}\"{} {}>{} by {}, ", coupler.name, coupler.isDrawn ? " drawn" : "",
                            coupler.from, coupler.to, coupler.shift);
    EXPECT_EQ(text, "123 St. Anne: Pedal (pedal) 36-65, Great 36-96, Swell 36-96, "
                    "Principal 8' drawn in 1: 36x61 on 0/36, Flute 4' in 2: 40x10 on 1/40, "
                    "Flute 8' in 0: 36x61 on 1/24, "
                    "\"Swell to Great\" 1>2 by 0, \"\" drawn 1>2 by 12, ");
}

TEST_F(XmlPipeOrganTest, ReadsPipes)
{
    const PipeOrgan organ = read(xmlOrganDefinition(consoleTables()));
    ASSERT_EQ(organ.ranks.size(), 2U);
    EXPECT_EQ(organ.ranks[0].division, std::nullopt) << "is in no enclosure";
    EXPECT_EQ(organ.ranks[1].division, 2U) << "although the pedal plays it too";
    EXPECT_EQ(organ.ranks[1].name, "Flute");

    ASSERT_EQ(organ.ranks[0].pipes.size(), 2U);
    const PipeOrgan::Pipe& pipe = organ.ranks[0].pipes[0];
    EXPECT_EQ(pipe.key, 60) << "is the default";
    EXPECT_FLOAT_EQ(pipe.gain, 0.1F);
    EXPECT_EQ(pipe.attacks.back().hertz, 262.5);
    EXPECT_EQ(attacksOf(organ, pipe), "000123 St. Anne/p/soft.wav 0.000-0.500 "
                                      "000123 St. Anne/p\\060-c.wav 0.500-1.000 own ");

    EXPECT_TRUE(organ.ranks[0].pipes[1].isPercussive) << "as its first layer is";
    EXPECT_EQ(organ.ranks[0].pipes[1].cents, 4.0);
    ASSERT_EQ(organ.ranks[1].pipes.size(), 1U);
    EXPECT_EQ(organ.ranks[1].pipes[0].harmonicNumber, 16.0);
    EXPECT_EQ(attacksOf(organ, organ.ranks[1].pipes[0]),
              "000123 St. Anne/p\\060-c.wav 0.000-1.000 own ")
        << "not with the tremulant";
    EXPECT_THAT(organ.skipped,
                ElementsAre(Pair("package 000005", HasSubstr("is missing: there is no folder")),
                            Pair("Blower", "belongs to no division"),
                            Pair("Flute, pipe 4", HasSubstr("MIDI note 200"))));

    folder_.write("OrganInstallationPackages/000005/p/short.wav", "");
    const PipeOrgan whole = read(xmlOrganDefinition(consoleTables()));
    EXPECT_THAT(attacksOf(whole, whole.ranks[0].pipes[0]),
                HasSubstr("own release 000005/p/short.wav 0.25 "));
    EXPECT_THAT(whole.skipped, testing::SizeIs(2));
}

TEST_F(XmlPipeOrganTest, UnderstandsAllOfXml)
{
    const std::string body =
        "<!-- ranks --><ObjectList ObjectType='RANK'><o><a>7</a><b>Fl&#246;te &amp; "
        "<![CDATA[<4'>]]></b></o></ObjectList>"
        "<ObjectList ObjectType='Pipe_SoundEngine01'><o><a>1</a><!-- x --><b>7</b><d/></o>"
        "<o><a>2</a><b>7</b><d>6<!-- x -->2</d></o></ObjectList>"
        "<ObjectList ObjectType='Pipe_SoundEngine01_Layer'><o><a>1</a><b>1</b></o>"
        "<o><a>2</a><b>2</b></o></ObjectList>"
        "<ObjectList ObjectType='Pipe_SoundEngine01_AttackSample'><o><b>1</b><c>1</c></o>"
        "<o><b>2</b><c>1</c></o></ObjectList>"
        "<ObjectList ObjectType='Sample'><o><a>1</a><c>a.wav</c><LICENCE/></o></ObjectList>";
    const auto inRoot = [&](const std::string& text) {
        return "<!DOCTYPE Hauptwerk [<!ELEMENT o ANY>]>\n<Hauptwerk>" + text + "</Hauptwerk>";
    };
    const PipeOrgan organ = read(inRoot(body));
    ASSERT_EQ(organ.ranks.size(), 1U);
    EXPECT_EQ(organ.ranks[0].name, "Fl\u00F6te & <4'>");
    EXPECT_EQ(organ.console.stops.at(0).name, organ.ranks[0].name) << "each rank is a stop";
    ASSERT_EQ(organ.ranks[0].pipes.size(), 2U);
    EXPECT_EQ(organ.ranks[0].pipes[0].key, 60);
    EXPECT_EQ(organ.ranks[0].pipes[1].key, 62);
    EXPECT_THAT(organ.files, ElementsAre("./a.wav")) << "one file for both";

    const auto errorOf = [&](const std::string& definition) -> std::string {
        try {
            read(definition);
            return "none";
        } catch (const FormatError& error) {
            return error.inFile("anne.xml");
        }
    };
    EXPECT_THAT(errorOf(inRoot("<a>\n</b>")),
                HasSubstr("anne.xml, line 3, column 3: the XML is damaged"));
    EXPECT_THAT(errorOf("<organ/>"), HasSubstr("is not an organ definition"));
    const auto licence = body.find("<LICENCE/>");
    EXPECT_THAT(errorOf(inRoot(std::string(body).replace(licence, 10, "<h>7</h>"))),
                HasSubstr("its samples are encrypted"));
}

} // namespace

} // namespace velmora
