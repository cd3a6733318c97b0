#include "import/sectionedOrgan.h"

#include "base/FormatError.h"

#include <gmock/gmock.h>

#include <cmath>

namespace velmora {

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::Pair;

PipeOrgan read(const std::string& bytes)
{
    return readSectionedOrgan(bytes, nullptr);
}

/// A manual of 61 keys with one stop, whose section has these lines.
std::string oneStop(const std::string& lines)
{
    return "[Organ]\nAmplitudeLevel=50\nPitchTuning=3\n"
           "[Manual001]\nName=Great\nFirstAccessibleKeyMIDINoteNumber=36\nStop001=007\n"
           "[Stop007]\nName=Principal 8'\nWindchestGroup=2\n" +
           lines;
}

const PipeOrgan::Pipe& onlyPipe(const PipeOrgan& organ)
{
    EXPECT_EQ(organ.ranks.size(), 1U);
    EXPECT_EQ(organ.ranks.at(0).pipes.size(), 1U);
    return organ.ranks.at(0).pipes.at(0);
}

/// The pipes of a stop as "first key: rank/first pipe x count".
std::string pipesOf(const PipeOrgan& organ, std::size_t stop)
{
    std::string result;
    for (const ConsoleDefinition::Pipes& run : organ.console.stops.at(stop).pipes)
        result += std::to_string(run.firstKey) + ": " + std::to_string(run.rank) + '/' +
                  std::to_string(run.firstPipe) + " x" + std::to_string(run.count) + "  ";
    return result;
}

} // namespace

TEST(SectionedOrgan, ReadsSpellingsOfTheFormat)
{
    for (const std::string lineEnd : {"\r\n", "\n", "\r"}) {
        std::string bytes = "\xEF\xBB\xBF; a comment\n[Organ]\n churchname = T\xC3\xB6ss \n"
                            "[manual01]\nStop3=0012\n"
                            "[STOP012]\npipe1=a.wav\n;PIPE2=b.wav\nPipe0003=c.wav\n"
                            "[Stop012]\nName=Fl\xC3\xB6te\n";
        for (std::size_t at = 0; (at = bytes.find('\n', at)) != std::string::npos;
             at += lineEnd.size())
            bytes.replace(at, 1, lineEnd);
        const PipeOrgan organ = read(bytes);
        EXPECT_EQ(organ.name, "Töss");
        EXPECT_EQ(organ.console.stops.at(0).name, "Flöte");
        EXPECT_EQ(pipesOf(organ, 0), "36: 0/36 x1  38: 0/38 x1  ");
    }
    EXPECT_EQ(read("[Organ]\nChurchName=T\xF6ss\n[Stop001]\nPipe001=a.wav\n").name, "Töss")
        << "Latin-1; without manuals all stops belong to one";
    EXPECT_THROW(read(std::string("\xFF\xFE[\0O\0", 6)), FormatError);
    EXPECT_THROW(read(oneStop("Pipe001=DUMMY\n")), FormatError) << "nothing sounds";
}

TEST(SectionedOrgan, ReadsTakesLoopsAndReleasesOfAPipe)
{
    const PipeOrgan organ =
        read(oneStop("Pipe001=p\\a.wav\nPipe001LoopCount=1\nPipe001Loop001Start=100\n"
                     "Pipe001Loop001End=199\nPipe001CuePoint=300\nPipe001MaxKeyPressTime=250\n"
                     "Pipe001AttackCount=4\nPipe001Attack001=b.wav\n"
                     "Pipe001Attack001AttackVelocity=64\nPipe001Attack001LoadRelease=N\n"
                     "Pipe001Attack002=t.wav\nPipe001Attack002IsTremulant=1\n"
                     "Pipe001Attack003=again.wav\nPipe001Attack003MaxTimeSinceLastRelease=90\n"
                     "Pipe001Attack004=P/A.WAV\n"
                     "Pipe001ReleaseCount=2\nPipe001Release001=r.wav\n"
                     "Pipe001Release001MaxKeyPressTime=500\nPipe001Release001CuePoint=7\n"
                     "Pipe001Release002=long.wav\n"));
    EXPECT_THAT(organ.files, ElementsAre("p\\a.wav", "b.wav", "r.wav", "long.wav"));
    const PipeOrgan::Pipe& pipe = onlyPipe(organ);
    ASSERT_EQ(pipe.attacks.size(), 3U);
    EXPECT_EQ(pipe.attacks[2].file, 0U) << "the same file";
    const PipeOrgan::Attack& soft = pipe.attacks[0];
    const PipeOrgan::Attack& loud = pipe.attacks[1];
    ASSERT_EQ(soft.loops.size(), 1U);
    EXPECT_EQ(soft.loops[0].begin, 100U);
    EXPECT_EQ(soft.loops[0].end, 200U) << "the file names the last frame";
    EXPECT_FLOAT_EQ(soft.loudest, 64 / 127.0F);
    EXPECT_FLOAT_EQ(loud.softest, 64 / 127.0F);
    EXPECT_FLOAT_EQ(loud.loudest, 1.0F);
    EXPECT_FALSE(loud.hasOwnRelease);
    EXPECT_FALSE(soft.hasOwnRelease) << "it is one of the releases";
    ASSERT_EQ(pipe.releases.size(), 3U);
    EXPECT_EQ(pipe.releases[0].cue, 300U);
    EXPECT_DOUBLE_EQ(pipe.releases[0].longestHeld, 0.25);
    EXPECT_EQ(pipe.releases[1].cue, 7U);
    EXPECT_DOUBLE_EQ(pipe.releases[1].longestHeld, 0.5);
    EXPECT_FALSE(pipe.releases[2].cue);
    EXPECT_TRUE(std::isinf(pipe.releases[2].longestHeld));
    EXPECT_THAT(organ.skipped,
                Contains(Pair("[Stop007] Principal 8', pipe 1, line 11", HasSubstr("tremulant"))));
}

TEST(SectionedOrgan, AddsUpVolumesAndTunings)
{
    const std::string chest = "[WindchestGroup002]\nGain=6\nPitchCorrection=1\n";
    const std::string rank = "Gain=-12\nPitchTuning=-100\nHarmonicNumber=16\nPitchCorrection=4\n";
    const PipeOrgan plain = read(
        oneStop(rank + "Pipe001=a.wav\nPipe001AmplitudeLevel=200\nPipe001PitchTuning=7\n" + chest));
    EXPECT_NEAR(onlyPipe(plain).gain, 0.5 * std::pow(10, -6 / 20.0) * 2, 1e-6);
    EXPECT_DOUBLE_EQ(onlyPipe(plain).retuning, 3 - 100 + 7);
    EXPECT_DOUBLE_EQ(onlyPipe(plain).cents, 5);
    EXPECT_DOUBLE_EQ(onlyPipe(plain).harmonicNumber, 16);
    EXPECT_FALSE(onlyPipe(plain).hertz);
    EXPECT_FALSE(onlyPipe(plain).isPercussive);

    const PipeOrgan noise =
        read(oneStop(rank + "Percussive=Y\nPipe001=a.wav\nPipe001HarmonicNumber=8\n"
                            "Pipe001MIDIKeyNumber=40\nPipe001MIDIPitchFraction=50\n"));
    EXPECT_DOUBLE_EQ(onlyPipe(noise).harmonicNumber, 8);
    EXPECT_NEAR(onlyPipe(noise).hertz.value(), 82.4069 * std::exp2(50 / 1200.0), 1e-3);
    EXPECT_TRUE(onlyPipe(noise).isPercussive);
    EXPECT_FALSE(onlyPipe(noise).attacks[0].hasOwnRelease);

    const PipeOrgan fixed = read(oneStop(rank + "AcceptsRetuning=N\nPipe001=a.wav\n"));
    EXPECT_NEAR(onlyPipe(fixed).hertz.value(), 65.4064 * 2 * std::exp2((100 - 3) / 1200.0), 1e-3);
}

TEST(SectionedOrgan, FindsTheKeysOfRanksAndBorrowedPipes)
{
    const PipeOrgan organ =
        read("[Manual000]\nName=Pedal\nFirstAccessibleKeyMIDINoteNumber=36\n"
             "NumberOfAccessibleKeys=30\nStop001=3\nStop002=4\n"
             "[Manual001]\nFirstAccessibleKeyMIDINoteNumber=48\n"
             "FirstAccessibleKeyLogicalKeyNumber=13\nStop001=1\nStop004=2\n"
             "[Stop001]\nName=Mixture\nNumberOfRanks=2\nNumberOfAccessiblePipes=4\n"
             "FirstAccessiblePipeLogicalKeyNumber=13\nRank001=1\nRank002=2\n"
             "Rank002FirstPipeNumber=3\nRank002FirstAccessibleKeyNumber=2\nRank002PipeCount=2\n"
             "[Rank001]\nFirstMidiNoteNumber=48\nPipe001=a.wav\nPipe002=b.wav\nPipe003=c.wav\n"
             "[Rank002]\nFirstMidiNoteNumber=126\nHarmonicNumber=8\n"
             "Pipe001=a.wav\nPipe003=b.wav\nPipe004=c.wav\n"
             "[Stop002]\nName=Flute\nFirstAccessiblePipeLogicalKeyNumber=1\nPipe001=d.wav\n"
             "Pipe002=EMPTY\nPipe003=e.wav\n"
             "[Stop003]\nName=Bass\nPipe001=REF:001:004:003\nPipe002=REF:1:4:4\n"
             "Pipe003=REF:0:2:1\nPipe004=REF:9:1:1\n"
             "[Stop004]\nName=Circle\nPipe001=REF:0:2:2\nPipe002=REF:0:2:1\n"
             "[Stop005]\nPipe001=a.wav\n");
    ASSERT_EQ(organ.console.stops.size(), 3U);
    EXPECT_EQ(pipesOf(organ, 0), "36: 0/38 x1  ") << "borrowed in the pedal";
    EXPECT_EQ(pipesOf(organ, 1), "48: 1/48 x3  49: 2/116 x2  ")
        << "keys above 127 are written an octave lower";
    EXPECT_EQ(organ.ranks[2].pipes[0].harmonicNumber, 16);
    EXPECT_EQ(pipesOf(organ, 2), "36: 0/36 x1  38: 0/38 x1  ");
    EXPECT_EQ(organ.ranks[0].division, 1U) << "the manual's swell, although the pedal is first";
    EXPECT_THAT(organ.console.divisions,
                ElementsAre(AllOf(Field(&ConsoleDefinition::Division::name, "Pedal"),
                                  Field(&ConsoleDefinition::Division::isPedal, true),
                                  Field(&ConsoleDefinition::Division::highestKey, 65)),
                            AllOf(Field(&ConsoleDefinition::Division::name, "Manual 1"),
                                  Field(&ConsoleDefinition::Division::lowestKey, 48))));
    EXPECT_THAT(organ.skipped,
                testing::IsSupersetOf(
                    {Pair("[Stop003] Bass, pipes 2–3, line 42", HasSubstr("does not sound")),
                     Pair("[Stop003] Bass, pipe 4, line 44", HasSubstr("stop 1 of manual 9")),
                     Pair("[Stop004] Circle, line 45", HasSubstr("no pipe that sounds")),
                     Pair("[Stop005], line 49", HasSubstr("no manual"))}));
}

TEST(SectionedOrgan, ReadsSwitchesSwellsAndCouplers)
{
    const std::string pipe = "WindchestGroup=1\nPipe001=a.wav\n";
    const PipeOrgan organ =
        read("[Manual001]\nStop001=1\nStop002=2\nStop003=3\nStop004=4\nStop005=5\n"
             "Coupler001=1\nCoupler002=2\nCoupler003=3\n"
             "[Manual002]\n[WindchestGroup001]\n[WindchestGroup002]\nEnclosure001=1\n"
             "[Stop001]\nDefaultToEngaged=Y\n" +
             pipe +
             "[Stop002]\nFunction=And\nSwitch001=1\nSwitch002=2\nWindchestGroup=2\nPipe001=b.wav\n"
             "[Stop003]\nFunction=Or\nSwitch001=1\nSwitch002=2\n" +
             pipe + "[Stop004]\nDisplayed=N\n" + pipe +
             "[Stop005]\nName=Blower\nNumberOfAccessiblePipes=1\nDefaultToEngaged=Y\n" + pipe +
             "[Switch001]\nDefaultToEngaged=N\n[Switch002]\nFunction=Not\nSwitch001=1\n"
             "[Coupler001]\nName=II/I 16'\nDestinationManual=2\nDestinationKeyshift=-12\n"
             "DefaultToEngaged=Y\n[Coupler002]\nUnisonOff=Y\n[Coupler003]\nDestinationManual=7\n"
             "[Tremulant001]\nName=Tremblant\n");
    std::vector<bool> drawn;
    for (const ConsoleDefinition::Stop& stop : organ.console.stops)
        drawn.push_back(stop.isDrawn);
    EXPECT_THAT(drawn, ElementsAre(true, false, true));
    EXPECT_FALSE(organ.ranks[0].division) << "not enclosed";
    EXPECT_EQ(organ.ranks[1].division, 0U);
    ASSERT_EQ(organ.console.couplers.size(), 1U);
    EXPECT_EQ(organ.console.couplers[0].to, 1U);
    EXPECT_EQ(organ.console.couplers[0].shift, -12);
    EXPECT_TRUE(organ.console.couplers[0].isDrawn);
    EXPECT_THAT(organ.skipped, testing::SizeIs(4)) << "blower, two couplers, tremulant";
}

} // namespace velmora
