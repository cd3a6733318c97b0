#include "import/OrganDefinition.h"

#include "base/FormatError.h"
#include "support/OrganFolder.h"

#include <gtest/gtest.h>

namespace {

using organ::list;
using organ::row;

const std::string kGeneral =
    list("_GENERAL", row("_General", {{"Identification_UniqueOrganID", "123"},
                                      {"Identification_Name", "St. Anne"}}));

std::string pipesOf(const OrganDefinition& definition)
{
    std::string result;
    for (const auto& pipe : definition.pipes) {
        result += std::to_string(pipe.rank) + ":" + std::to_string(pipe.note);
        if (const auto file = definition.files.find(pipe.id); file != definition.files.end())
            result += "=" + file->second.name + "@" + std::to_string(file->second.package) +
                      (file->second.licensed ? "!" : "");
        result += " ";
    }
    return result;
}

TEST(OrganDefinition, KeepsTheValueOfTheRowBeforeWhereAFullNameIsMissing)
{
    const auto definition = readOrganDefinition(organ::file(
        kGeneral +
        list("PIPE_SoundEngine01",
             row("Pipe", {{"PipeID", "1"}, {"RankID", "7"}, {"NormalMIDINoteNumber", "36"}}) +
                 row("Pipe", {{"PipeID", "2"}})) +
        list("Pipe_SoundEngine01_Layer",
             row("L", {{"LayerID", "11"}, {"PipeID", "1"}}) + row("L", {{"LayerID", "12"}})) +
        list("Pipe_SoundEngine01_AttackSample",
             row("A", {{"LayerID", "12"}, {"SampleID", "21"}}) + row("A", {{"LayerID", "99"}})) +
        list("Sample", row("S", {{"SampleID", "21"},
                                 {"SampleFilename", "a\\b.wav"},
                                 {"InstallationPackageID", "5"},
                                 {"LicenceSerialNumRequiredForSampleFile", "0"}}))));
    EXPECT_EQ(definition.name, "St. Anne");
    EXPECT_EQ(definition.number, 123);
    EXPECT_EQ(pipesOf(definition), "7:36=a\\b.wav@5 7:36 ");
}

TEST(OrganDefinition, ReadsTheLettersOfCompactedRowsWithTheirDefaults)
{
    const auto definition = readOrganDefinition(organ::file(
        list("Rank", row("o", {{"b", "Flute"}, {"a", "7"}}) + row("o", {{"a", "8"}})) + kGeneral +
        list("Pipe_SoundEngine01",
             row("o", {{"d", "36"}, {"b", "7"}, {"a", "1"}}) +
                 row("Pipe_SoundEngine01", {{"a", "2"}, {"c", "x"}, {"b", "8"}})) +
        list("Pipe_SoundEngine01_Layer",
             row("o", {{"a", "11"}, {"b", "1"}}) + row("o", {{"a", "12"}, {"b", "2"}})) +
        list("Pipe_SoundEngine01_AttackSample", row("o", {{"c", "21"}, {"b", "11"}, {"a", "3"}}) +
                                                    row("o", {{"b", "12"}, {"c", "22"}})) +
        list("Sample", row("o", {{"a", "21"}, {"b", "5"}, {"c", "a.wav"}, {"h", "9"}}) +
                           row("o", {{"a", "22"}, {"c", "b.wav"}}))));
    EXPECT_EQ(pipesOf(definition), "7:36=a.wav@5! 8:60=b.wav@0 ");
    EXPECT_EQ(definition.rankNames.at(7), "Flute");
    EXPECT_EQ(definition.rankNames.at(8), "");
}

TEST(OrganDefinition, RefusesWhatIsNoOrgan)
{
    const struct {
        std::string text, sentence;
    } rows[] = {
        {"", "is no organ definition: its root element is not \"Hauptwerk\""},
        {"<Hauptwerk></Hauptwerk>",
         "is no organ definition: its root element is not \"Hauptwerk\""},
        {organ::file(""), "has no list of objects of the type _General"},
        {organ::file(kGeneral), "has no list of objects of the type Pipe_SoundEngine01_Layer"},
        {organ::file(list("_General", "") + list("Pipe_SoundEngine01_layer", "") +
                     list("Sample", "") + list("Pipe_SoundEngine01_AttackSample", "")),
         "has no list of objects of the type Pipe_SoundEngine01"},
    };
    for (const auto& row : rows) {
        try {
            readOrganDefinition(row.text);
            ADD_FAILURE() << row.sentence;
        } catch (const FormatError& error) {
            EXPECT_EQ(error.what(), row.sentence);
        }
    }
}

} // namespace
