#include "tuning/TuningDocument.h"

#include "base/FormatError.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/TuningFile.h"

#include <gmock/gmock.h>

#include <cmath>
#include <fstream>
#include <regex>

namespace velmora {

using namespace testing;

namespace {

constexpr auto kHertz = TuningFormat::Frequencies;

Temperament read(const std::string& text, TuningFormat format = TuningFormat::Scale)
{
    return readTuning(std::as_bytes(std::span(text)), format);
}

std::string errorOf(const std::string& text, TuningFormat format = TuningFormat::Scale)
{
    try {
        read(text, format);
        return "none";
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
}

/// A file with the given first two lines, followed by the pitches from D to B and one more line.
std::string file(const std::string& first, const std::string& second)
{
    return first + "\n" + second + "\n200\n300\n400\n500\n600\n700\n800\n900\n1000\n1100\n2/1\n";
}

/// A scale of equal semitones, except for C sharp.
std::string scale(const std::string& pitch, const std::string& count = "12")
{
    return "A scale\n" + file(count, pitch);
}

} // namespace

TEST(TuningFile, ReadsTheLeadingNumberOfEachContentLine)
{
    const std::string full = scale("90.0");
    const std::regex end("\n");
    for (const auto& [text, cents] : std::vector<std::pair<std::string, double>>{
             {scale("100.0"), 100.0},
             {scale("  76.049 cents \xB5"), 76.049},
             {scale("2"), 2.0},
             {scale("3/2"), 701.9550009},
             {scale(" -5.9 / -4.9 or 81/64"), 386.3137139},
             {scale(std::string("5\0/4", 4)), 386.3137139},
             {scale("90.0", " +12.5 notes"), 90.0},
             {std::regex_replace(full, end, "\n! file.scl\n\n\r\n/ /\n: :\n@ @\n"), 90.0},
             {std::regex_replace(full, end, "\r\n"), 90.0},
             {full + "anything\nonce more", 90.0},
             {full.substr(0, full.size() - 4), 90.0}}) {
        EXPECT_NEAR(read(text).getTuning(1).cent(), cents, 1e-6) << text;
        EXPECT_EQ(read(text).getTuning(11).cent(), 1100.0) << text;
    }
}

TEST(TuningFile, ReadsFrequenciesWithTheBaseAnOctaveUpAsB)
{
    const Temperament hertz = read("! hertz\n" + file("250.5", "190.5 C"), kHertz);
    for (const auto& [key, pitch] : {std::pair(48, 190.5), {58, 1100.0}, {59, 501.0}, {60, 381.0}})
        EXPECT_EQ(hertz.getPitch(static_cast<unsigned long>(key)), pitch) << "key " << key;
}

TEST(TuningFile, ReportsWhatIsWrongAndWhere)
{
    const std::string full = scale("100.0");
    const std::string hertz = file("250", "300");
    for (const auto& [error, line, reason] : std::vector<std::array<std::string, 3>>{
             {errorOf(""), "line 0",
              "Scale files need at least 13 lines of content; this one has 0"},
             {errorOf(full.substr(0, full.size() - 5)), "line 13", "it has no line end"},
             {errorOf(std::regex_replace(full, std::regex("\n"), "\r")), "line 1",
              "not in CR alone"},
             {errorOf(hertz + "more\n", kHertz), "line 14",
              "MTX files need exactly 13 lines of content; this one has 14"},
             {errorOf(hertz.substr(0, hertz.size() - 4), kHertz), "line 12", "this one has 12"},
             {errorOf(file("250", "0"), kHertz), "line 2", "\"0\" is not a playable pitch"},
             {errorOf(file("-250", "300"), kHertz), "line 1", "\"-250\" is not a playable pitch"},
             {errorOf(scale("100", "twelve")), "line 2", "\"twelve\" is the number of notes"},
             {errorOf(scale("100", "4294967308")), "line 2", "\"4294967308\" is the number of"},
             {errorOf("!\n\n" + scale("5/0.5")), "line 5", "\"5/0.5\" has a zero denominator"},
             {errorOf(scale("5/")), "line 3", "\"5/\" is not a number"},
             {errorOf(scale("\xE9\x1B[31m")), "line 3", "\"??[31m\" is not a number"},
             {errorOf(scale(std::string(5000, 'x'))), "line 3", std::string(40, 'x') + "...\" is"},
             {errorOf(scale("1/inf")), "line 3", "\"1/inf\" is not a finite number"},
             {errorOf(scale("4/-2")), "line 3", "\"4/-2\" is not a playable pitch"},
             {errorOf(scale("-2e6")), "line 3", "\"-2e6\" is not a playable pitch"}})
        EXPECT_THAT(error, AllOf(StartsWith("f, " + line + ": "), HasSubstr(reason)));
}

TEST(TuningDocument, KeepsItsTemperamentWhenAFileCannotBeRead)
{
    const auto third = [](const TuningDocument& d) { return d.temperament().getTuning(4).ratio(); };
    const auto document = TuningDocument::makeBuiltin("dynamic");
    EXPECT_EQ(third(*document), 1.25) << "meantone";
    EXPECT_FALSE(document->read("/nonexistent/some.scl", TuningFormat::Scale, Reading::Plain));
    EXPECT_EQ(document->errorString(), "some.scl: cannot be read (No such file or directory)");
    EXPECT_EQ(third(*document), 1.25);
    const std::string path = testing::TempDir() + "velmora.scl";
    std::ofstream(path) << scale("90.0");
    EXPECT_FALSE(document->read(path, TuningFormat::Frequencies));
    EXPECT_TRUE(document->read(path, TuningFormat::Scale, Reading::Plain));
    EXPECT_NEAR(third(*document), third(*TuningDocument::makeBuiltin("Equal")), 1e-9);
    const auto dynamic = TuningDocument::makeBuiltin("Dynamic");
    EXPECT_NE(dynamic_cast<const DynamicTemperament*>(&dynamic->temperament()), nullptr);
}

TEST(TuningDocument, ReadsScalesAsTheReadingHasThem)
{
    const std::string path = testing::TempDir() + "velmora_reading.scl";
    std::string text = "Stretched\n12\n";
    for (int i = 1; i < 12; ++i)
        text += std::to_string(100 * i) + ".5\n";
    std::ofstream(path) << text << "1210.\n";
    TuningDocument document;
    const auto interval = [&] {
        return 1200.0 *
               std::log2(document.temperament().pitchAt(73) / document.temperament().pitchAt(60));
    };
    ASSERT_TRUE(document.read(path, TuningFormat::Scale, Reading::Plain));
    EXPECT_NEAR(interval(), 1200.0 + 100.5, 1e-9);
    EXPECT_THAT(document.warning(), HasSubstr("repeats after 1210.000000 cents"));
    ASSERT_TRUE(document.read(path, TuningFormat::Scale));
    EXPECT_NEAR(interval(), 1210.0 + 100.5, 1e-9);
    EXPECT_EQ(document.warning(), "");
    EXPECT_EQ(document.description(), "Stretched");
    std::ofstream(path) << "No scale\n";
    EXPECT_FALSE(document.read(path, TuningFormat::Scale));
    EXPECT_NEAR(interval(), 1210.0 + 100.5, 1e-9);
}

TEST(TuningDocument, TakesAKeyboardMappingAndGivesItBack)
{
    const std::string path = testing::TempDir() + "velmora.kbm";
    std::ofstream(path) << "2\n0\n127\n60\n69\n430.\n12\n0\n9\n";
    for (const char* name : {"Equal", "Vallotti"}) {
        const auto document = TuningDocument::makeBuiltin(name);
        const auto mapped = document->withMapping(path);
        EXPECT_EQ(mapped->errorString(), "");
        EXPECT_NEAR(mapped->temperament().pitchAt(69), 860.0, 1e-9);
        EXPECT_NEAR(mapped->temperament().pitchAt(62) / mapped->temperament().pitchAt(60), 2.0,
                    1e-9);
        EXPECT_EQ(mapped->mappingPath(), path);
        const auto back = mapped->withMapping({});
        EXPECT_EQ(back->temperament().pitchAt(69), document->temperament().pitchAt(69));
        EXPECT_EQ(back->mappingPath(), "");
        const auto failed = mapped->withMapping("/nowhere/none.kbm");
        EXPECT_THAT(failed->errorString(), StartsWith("none.kbm: cannot be read"));
    }
    EXPECT_THAT(TuningDocument::makeBuiltin("Pure")->withMapping(path)->errorString(),
                HasSubstr("needs a scale"));
}

TEST(TuningFile, DescribesItselfInItsFirstContentLine)
{
    for (const auto& [text, format, description] :
         std::vector<std::tuple<std::string, TuningFormat, std::string>>{
             {"! a.scl\n!\n  Young II\xE9 (1799)\t\r\n12\n", TuningFormat::Scale,
              "Young IIé (1799)"},
             {" \t\n12\n", TuningFormat::Scale, ""},
             {"! only a comment\n", TuningFormat::Scale, ""},
             {"261.6\n277.2\n", kHertz, ""}})
        EXPECT_EQ(readTuningDescription(std::as_bytes(std::span(text)), format), description)
            << text;
}

} // namespace velmora
