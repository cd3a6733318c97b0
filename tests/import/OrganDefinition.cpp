#include "import/OrganDefinition.h"

#include "support/OrganFolder.h"

#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

TEST(OrganDefinition, KeepsThePreviousValueOfAMissingField)
{
    const std::string file = "SampleFilename=a\\b.wav,InstallationPackageID=5";
    OrganDefinition organ = readOrganDefinition(xmlOrganDefinition(
        {{"_GENERAL", {"Identification_Name=St. Anne"}},
         {"PIPE_SoundEngine01", {"PipeID=1,RankID=7,NormalMIDINoteNumber=36", "PipeID=2"}},
         {"Pipe_SoundEngine01_Layer", {"LayerID=11,PipeID=1", "LayerID=12"}},
         {"Pipe_SoundEngine01_AttackSample", {"LayerID=12,SampleID=21", "LayerID=99"}},
         {"Sample", {"SampleID=21,LicenceSerialNumRequiredForSampleFile=9," + file}}}));
    std::string pipes;
    for (const auto& pipe : organ.pipes) {
        const auto& [name, package, licensed] = organ.files[pipe.id];
        pipes += fmt::format("{}:{}={}@{} {} ", pipe.rank, pipe.note, name, package, licensed);
    }
    EXPECT_EQ(pipes, "7:36=a\\b.wav@5 true 7:36=@0 false ");
}

} // namespace

} // namespace velmora
