#include "import/OrganDefinition.h"

#include "base/FormatError.h"
#include "support/OrganFolder.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

namespace {

const ObjectList kGeneral{"_GENERAL", {"Identification_Name=St. Anne"}};

/// Of each pipe the rank, key, file and package; or why the organ is refused.
std::string pipesOf(const std::vector<ObjectList>& lists)
try {
    OrganDefinition organ = readOrganDefinition(xmlOrganDefinition(lists));
    std::string result;
    for (const auto& pipe : organ.pipes) {
        const auto& [name, package, licensed] = organ.files[pipe.id];
        result +=
            fmt::format("{}:{}={}@{}{} ", pipe.rank, pipe.note, name, package, licensed ? "!" : "");
    }
    return result;
} catch (const FormatError& error) {
    return error.what();
}

TEST(OrganDefinition, ReadsRowsOfFullNamesAndOfLetters)
{
    const std::string file = "SampleFilename=a\\b.wav,InstallationPackageID=5";
    EXPECT_EQ(
        pipesOf({kGeneral,
                 {"PIPE_SoundEngine01", {"PipeID=1,RankID=7,NormalMIDINoteNumber=36", "PipeID=2"}},
                 {"Pipe_SoundEngine01_Layer", {"LayerID=11,PipeID=1", "LayerID=12"}},
                 {"Pipe_SoundEngine01_AttackSample", {"LayerID=12,SampleID=21", "LayerID=99"}},
                 {"Sample", {"SampleID=21,LicenceSerialNumRequiredForSampleFile=9," + file}}}),
        "7:36=a\\b.wav@5! 7:36=@0 ")
        << "a missing field keeps the value of the row before";
    EXPECT_EQ(pipesOf({kGeneral,
                       {"Pipe_SoundEngine01", {"d=36,b=7,a=1", "a=2,c=x,b=8"}},
                       {"Pipe_SoundEngine01_Layer", {"a=11,b=1", "a=12,b=2"}},
                       {"Pipe_SoundEngine01_AttackSample", {"c=21,b=11,a=3", "b=12,c=22"}},
                       {"Sample", {"a=21,b=5,c=a.wav,h=9", "a=22,c=b.wav"}}}),
              "7:36=a.wav@5! 8:60=b.wav@0 ")
        << "a missing letter has its default";
}

TEST(OrganDefinition, RefusesWhatIsNoOrgan)
{
    const std::string missing = "has no list of objects of the type ";
    EXPECT_EQ(pipesOf({}), missing + "_General");
    EXPECT_EQ(pipesOf({kGeneral}), missing + "Pipe_SoundEngine01_Layer");
    EXPECT_THROW(readOrganDefinition("<?xml?><organ></organ>"), FormatError);
    EXPECT_THROW(readOrganDefinition(""), FormatError);
}

} // namespace
