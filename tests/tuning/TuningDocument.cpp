#include "tuning/TuningDocument.h"

#include "tuning/DynamicTemperament.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

using testing::HasSubstr;

namespace {

/// A file in a folder of its own, gone with the test.
class TuningDocumentTest : public testing::Test {
protected:
    void SetUp() override { std::filesystem::create_directories(folder_); }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    bool read(const std::string& content, std::string_view type = "scale")
    {
        std::ofstream(folder_ + "/file.scl", std::ios::binary) << content;
        return document.readFromURL(folder_ + "/file.scl", type);
    }

    /// The sentence of a file that cannot be read.
    std::string refusal(const std::string& content, std::string_view type = "scale")
    {
        EXPECT_FALSE(read(content, type)) << content;
        return document.errorString();
    }

    double cents(unsigned long key) const
    {
        return document.getTemperament().getTuning(key).cent();
    }

    TuningDocument document;

private:
    const std::string folder_ = testing::TempDir() + "velmora-tuning-" + std::to_string(getpid());
};

/// A scale of equal semitones, but for C sharp.
std::string scale(const std::string& second, const std::string& count = "12")
{
    std::string text = "Equal semitones\n" + count + "\n" + second + "\n";
    for (int i = 2; i < 12; ++i)
        text += std::to_string(100 * i) + ".0\n";
    return text + "2/1\n";
}

/// The base, C and the others a hertz apart, and a last line without meaning.
std::string frequencies(const std::string& base, const std::string& c)
{
    std::string text = base + "\n" + c + "\n";
    for (int i = 1; i < 11; ++i)
        text += std::to_string(300 + i) + "\n";
    return text + "end\n";
}

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

} // namespace

TEST_F(TuningDocumentTest, ReadsAScaleOfCents)
{
    ASSERT_TRUE(read(scale("100.0"))) << document.errorString();
    EXPECT_EQ(document.getName(), "file.scl");
    EXPECT_EQ(document.errorString(), "");
    for (unsigned long key = 0; key < 128; ++key)
        EXPECT_DOUBLE_EQ(document.getTemperament().getPitch(key), equal.getPitch(key));
}

TEST_F(TuningDocumentTest, ReadsAPitchLineByItsLeadingNumbers)
{
    const struct {
        std::string line;
        double cents;
    } rows[] = {
        {"76.049", 76.049},
        {"76.049 cents ! C sharp", 76.049},
        {"  76.049", 76.049},
        {"2", 2.0},
        {"-5.0", -5.0},
        {"0.", 0.0},
        {"16/15", 111.7312853},
        {" 16 / 15 half a tone", 111.7312853},
        {"5/4 or 81/64", 386.3137139},
        {"5.9/4.9", 386.3137139},
        {"-5/-4", 386.3137139},
        {std::string("5\0/4", 4), 386.3137139},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(read(scale(row.line))) << document.errorString();
        EXPECT_NEAR(cents(1), row.cents, 1e-6) << row.line;
        EXPECT_EQ(cents(2), 200.0) << row.line;
    }
}

TEST_F(TuningDocumentTest, SkipsCommentsAndEmptyLines)
{
    const std::string comments = "! file.scl\n!\n\n\r\n/ slash\n: colon\n@ at\n";
    ASSERT_TRUE(read(replaced(scale("90.0"), "\n", "\n" + comments))) << document.errorString();
    EXPECT_EQ(cents(1), 90.0);
    EXPECT_EQ(cents(11), 1100.0);
    ASSERT_TRUE(read(scale("90.0") + "anything\nmore\nonce more"));
    EXPECT_EQ(cents(11), 1100.0);
}

TEST_F(TuningDocumentTest, TakesAnyEncodingAndTheLineEndsOfOtherSystems)
{
    const std::string latin1 = replaced(scale("90.0 \xB5"), "Equal", "T\xE9mp\xE9r\xE9");
    ASSERT_TRUE(read(latin1)) << document.errorString();
    EXPECT_EQ(cents(1), 90.0);
    ASSERT_TRUE(read(replaced(scale("90.0"), "\n", "\r\n"))) << document.errorString();
    EXPECT_EQ(cents(1), 90.0);
    EXPECT_EQ(refusal(replaced(scale("90.0"), "\n", "\r")),
              "file.scl, line 1: the file holds 0 lines of content, but at least 13 are wanted "
              "(a line must end in LF or CR LF, not in CR alone)");
}

TEST_F(TuningDocumentTest, TakesTheLeadingNumberOfTheCountLine)
{
    for (const char* count : {"12", " 12", "12 notes", "12.5", "+12"})
        EXPECT_TRUE(read(scale("100.0", count))) << count;
    for (const char* count : {"twelve", "0", "13", "-12", "1e1", "4294967308"})
        EXPECT_EQ(refusal(scale("100.0", count)),
                  "file.scl, line 2: \"" + std::string(count) +
                      "\" is the number of notes, but a scale of 12 notes is wanted");
}

TEST_F(TuningDocumentTest, CountsOnlyLinesThatEnd)
{
    const std::string full = scale("100.0");
    const std::string withoutOctave = full.substr(0, full.size() - 4);
    EXPECT_TRUE(read(withoutOctave)) << "the octave is not read";
    EXPECT_EQ(refusal(withoutOctave.substr(0, withoutOctave.size() - 1)),
              "file.scl, line 13: the file holds 12 lines of content, but at least 13 are wanted "
              "(the last line does not count: it has no line end)");
    EXPECT_EQ(refusal("! nothing\nA scale\n"),
              "file.scl, line 2: the file holds 1 line of content, but at least 13 are wanted");
    EXPECT_THAT(refusal(""), HasSubstr("holds 0 lines"));
}

TEST_F(TuningDocumentTest, RefusesPitchesThatAreNone)
{
    const struct {
        std::string line;
        std::string reason;
    } rows[] = {
        {"C#", "\"C#\" is not a number"},
        {" ", "\" \" is not a number"},
        {"5/", "\"5/\" is not a number"},
        {"x/4", "\"x/4\" is not a number"},
        {"nan", "\"nan\" is not a finite number"},
        {"1/inf", "\"1/inf\" is not a finite number"},
        {"1e400", "\"1e400\" is not a finite number"},
        {"5/0", "\"5/0\" divides by zero"},
        {"5/0.5", "\"5/0.5\" divides by zero"},
        {"0/4", "\"0/4\" is no pitch"},
        {"4/-2", "\"4/-2\" is no pitch"},
        {"1e308/1", "\"1e308/1\" is no pitch"},
        {"1e300", "\"1e300\" is no pitch"},
        {"-2e6", "\"-2e6\" is no pitch"},
        {"\xE9\x1B[31m", "\"??[31m\" is not a number"},
        {std::string(5000, 'x'), '"' + std::string(40, 'x') + "...\" is not a number"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(refusal(scale(row.line)), "file.scl, line 3: " + row.reason);
    EXPECT_EQ(refusal(replaced(scale("5/0"), "\n", "\n!\n\n")),
              "file.scl, line 7: \"5/0\" divides by zero")
        << "comments are counted";
}

TEST_F(TuningDocumentTest, ReadsFrequenciesWithTheBaseAnOctaveUpAsB)
{
    ASSERT_TRUE(read("! hertz\n" + frequencies("250.5", "299.5 C"), "MTX"))
        << document.errorString();
    const Temperament& temperament = document.getTemperament();
    EXPECT_EQ(temperament.baseFrequency(), 250.5);
    EXPECT_EQ(temperament.getPitch(48), 299.5);
    EXPECT_EQ(temperament.getPitch(49), 301.0);
    EXPECT_EQ(temperament.getPitch(58), 310.0);
    EXPECT_EQ(temperament.getPitch(59), 501.0);
    EXPECT_EQ(temperament.getPitch(60), 599.0);
    EXPECT_EQ(cents(60), 0.0);
}

TEST_F(TuningDocumentTest, RefusesFrequenciesThatAreNone)
{
    const std::string good = frequencies("250", "300");
    EXPECT_EQ(refusal(good + "more\n", "MTX"),
              "file.scl, line 14: the file holds 14 lines of content, but exactly 13 are wanted");
    EXPECT_THAT(refusal(good.substr(0, good.size() - 4), "MTX"), HasSubstr("holds 12 lines"));
    EXPECT_EQ(refusal(frequencies("250", "0"), "MTX"), "file.scl, line 2: \"0\" is no pitch");
    EXPECT_EQ(refusal(frequencies("-250", "300"), "MTX"), "file.scl, line 1: \"-250\" is no pitch");
    EXPECT_EQ(refusal(frequencies("250", "1e-323"), "MTX"),
              "file.scl, line 2: \"1e-323\" is no pitch");
    EXPECT_EQ(refusal(frequencies("Hz", "300"), "MTX"), "file.scl, line 1: \"Hz\" is not a number");
}

TEST_F(TuningDocumentTest, KeepsItsTemperamentWhenAFileCannotBeRead)
{
    ASSERT_TRUE(read(scale("90.0")));
    refusal(replaced(scale("50.0"), "1100.0", "x"));
    EXPECT_EQ(cents(1), 90.0);
    EXPECT_FALSE(document.readFromURL("/nonexistent/some.scl", "scale"));
    EXPECT_EQ(document.errorString(), "some.scl: cannot be read (No such file or directory)");
    EXPECT_FALSE(document.readFromURL(testing::TempDir(), "scale"));
    EXPECT_THAT(document.errorString(), HasSubstr("cannot be read (Is a directory)"));
    EXPECT_EQ(cents(1), 90.0);
    ASSERT_TRUE(read(scale("80.0")));
    EXPECT_EQ(document.errorString(), "");
    EXPECT_EQ(cents(1), 80.0);
}

TEST(TuningDocument, HoldsTheBuiltInTunings)
{
    const auto isDynamic = [](const TuningDocument& document) {
        return dynamic_cast<const DynamicTemperament*>(&document.getTemperament()) != nullptr;
    };
    const auto dynamic = TuningDocument::initBuiltin("Dynamic");
    EXPECT_TRUE(isDynamic(*dynamic));
    EXPECT_EQ(dynamic->getName(), "Dynamic");

    const auto equalDocument = TuningDocument::initBuiltin("Equal");
    EXPECT_FALSE(isDynamic(*equalDocument));
    EXPECT_EQ(equalDocument->getTemperament().getPitch(52), equal.getPitch(52));

    for (const char* name : {"Quartercomma Meantone", "dynamic", ""}) {
        const auto other = TuningDocument::initBuiltin(name);
        EXPECT_EQ(other->getName(), name);
        EXPECT_FALSE(isDynamic(*other));
        EXPECT_EQ(other->getTemperament().getTuning(4).ratio(), 5.0 / 4.0) << name;
    }
}
