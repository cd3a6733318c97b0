#include "import/organFile.h"

#include "import/ImportedBank.h"
#include "support/OrganFolder.h"
#include "support/Sine.h"
#include "support/zipArchive.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace velmora {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

/// A second of 500 Hz with a loop of 100 periods, and chunks that say its pitch and its release.
std::string loopedPipe()
{
    const double note = 69 + 12 * std::log2(500.0 / 440.0);
    const auto fraction = static_cast<std::size_t>((note - std::floor(note)) * 0x1p32);
    const auto unity = static_cast<std::size_t>(note);
    return riff::file(
        "WAVE", riff::wave(riff::points(sine(500.0, 1.0)), 48000) +
                    riff::chunk("smpl", riff::numbers({0, 0, 0, unity, fraction, 0, 0, 1, 0}, 4) +
                                            riff::numbers({0, 0, 9600, 19199, 0, 0}, 4)) +
                    riff::chunk("cue ", riff::numbers({1, 1, 0, 0, 0, 0, 24000}, 4)));
}

/// An organ with a rank that the pedal borrows, and a 4' rank of the same recording.
std::string definition(const std::string& name, const std::string& file)
{
    return "[Organ]\r\nChurchName=" + name +
           "\r\n[Manual000]\r\nFirstAccessibleKeyMIDINoteNumber=36\r\nStop001=3\r\n"
           "[Manual001]\r\nFirstAccessibleKeyMIDINoteNumber=36\r\nStop001=1\r\nStop002=2\r\n"
           "[Stop001]\r\nName=Flute 8'\r\nPipe036=" +
           file +
           "\r\nPipe037=REF:1:1:36\r\n"
           "[Stop002]\r\nName=Octave 4'\r\nNumberOfRanks=1\r\nRank001=4\r\n"
           "[Rank004]\r\nHarmonicNumber=16\r\nFirstMidiNoteNumber=36\r\nPipe024=" +
           file + "\r\n[Stop003]\r\nName=Bass 8'\r\nPipe012=REF:001:001:036\r\n";
}

class OrganFileTest : public testing::Test {
protected:
    Import& read(const std::string& file, std::size_t choice = 0)
    {
        ImportOptions options;
        options.choice = choice;
        import_.emplace(host_, options);
        const auto path = folder_.path() / file;
        path.extension() == ".organ" ? readOrganFile(path, *import_)
                                     : readOrganPackage(path, *import_);
        return *import_;
    }

    void writePackage(const std::string& name,
                      const std::vector<std::pair<std::string, std::string>>& files)
    {
        folder_.write(name, zipArchive(files, ZipMethod::Deflated));
    }

    OrganFolder folder_;
    RecordingHost host_;
    std::optional<Import> import_;
};

} // namespace

TEST_F(OrganFileTest, SoundsInTuneForAsLongAsAKeyIsHeld)
{
    folder_.write("Pipes/C.wav", loopedPipe());
    folder_.write("set.organ", definition("Anne", "pipes\\c.wav"));
    Import& import = read("set.organ");
    EXPECT_EQ(import.name, "Anne");
    ASSERT_TRUE(import.console);
    EXPECT_EQ(import.console->stops.size(), 3U);
    EXPECT_EQ(import.report.samples, 2U) << "the attack and its release, loaded once for all ranks";

    ALInstrument& organ = *import.instrument;
    EXPECT_NEAR(centsOff(organ, 71, 440.0), 0.0, 0.25) << "the 8' rank, at key 71";
    std::swap(organ.stops().at(0).volume, organ.stops().at(1).volume);
    EXPECT_NEAR(centsOff(organ, 59, 880.0), 0.0, 0.25) << "the 4' rank, at key 59";

    organ.play(59, 1.0F);
    const Stereo held = rendered(*organ.source(), 150'000);
    const auto loudest = [](std::span<const float> sound) {
        float result = 0.0F;
        for (const float point : sound)
            result = std::max(result, std::abs(point));
        return result;
    };
    const float before = loudest(std::span(held.left).subspan(20'000, 10'000));
    EXPECT_GT(before, 0.05F);
    EXPECT_NEAR(loudest(std::span(held.left).last(10'000)), before, before / 100)
        << "longer than the file";
    organ.stop(59);
    const Stereo released = rendered(*organ.source(), 60'000);
    EXPECT_NEAR(loudest(std::span(released.left).subspan(4'000, 4'000)), before, before / 10)
        << "the release that is marked in the file";
    EXPECT_EQ(loudest(std::span(released.left).last(10'000)), 0.0F);
}

TEST_F(OrganFileTest, ChoosesAnOrganOfAPackage)
{
    const std::string pipe = loopedPipe();
    writePackage("both.orgue", {{"a/wet.organ", definition("Wet", "../pipes/c.wav")},
                                {"a/pipes/c.wav", pipe},
                                {"a/dry.ORGAN", definition("Dry", "Pipes\\C.wav")}});
    EXPECT_EQ(read("both.orgue", 1).name, "Dry");
    EXPECT_THAT(import_->choices, ElementsAre("a/wet.organ", "a/dry.ORGAN"));
    EXPECT_THROW(read("both.orgue"), FormatError) << "the samples lie outside the folder";

    const std::string index = "[General]\nTitle=Anne wet\n[Organ001]\nFilename=wet.organ\n"
                              "[Dependency001]\nTitle=Anne\n";
    writePackage("wet.orgue", {{"organindex.ini", index},
                               {"wet.organ", definition("Wet", "pipes/c.wav")},
                               {"unlisted.organ", ""}});
    folder_.write("junk.orgue", "junk");
    EXPECT_THROW(read("wet.orgue"), FormatError);
    EXPECT_THAT(import_->report.skipped, Contains(Pair("Anne", HasSubstr("not in the folder"))));
    writePackage("anne.orgue",
                 {{"organindex.ini", "[General]\nTitle=Anne\n"}, {"pipes/c.wav", pipe}});
    EXPECT_EQ(read("wet.orgue").report.pipes, 2U);
    EXPECT_THAT(import_->choices, IsEmpty());

    EXPECT_THAT([&] { read("anne.orgue"); },
                testing::ThrowsMessage<FormatError>(HasSubstr("holds no organ definition")));
}

} // namespace velmora
