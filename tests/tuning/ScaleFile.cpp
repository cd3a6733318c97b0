#include "tuning/ScaleFile.h"

#include "base/FormatError.h"
#include "tuning/ExtendedScaleFile.h"
#include "tuning/MappingFile.h"
#include "tuning/ScaleTemperament.h"

#include <gmock/gmock.h>

#include <random>
#include <regex>

namespace velmora {

using namespace testing;

namespace {

std::span<const std::byte> bytesOf(const std::string& text)
{
    return std::as_bytes(std::span(text));
}

Scale scaleOf(const std::string& text)
{
    return readScale(bytesOf(text));
}

template <class Read> std::string scaleErrorOf(const Read& read, const std::string& text)
{
    try {
        read(bytesOf(text));
        return "none";
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
}

/// A mapping file with the given lines in place of those of a map of twelve keys.
std::string mapping(const std::string& lines)
{
    return "! a.kbm\n12\n0\n127\n60\n69\n440.0\n12\n" + lines;
}

/// The hertz at which a key sounds.
double soundOf(const ScaleTemperament& temperament, int key)
{
    return temperament.pitchAt(key) / 2.0;
}

Scale equalSteps(int count, double period)
{
    Scale scale;
    for (int i = 1; i <= count; ++i)
        scale.pitches.emplace_back(Cent(period * i / count));
    return scale;
}

} // namespace

TEST(ScaleFile, ReadsPitchesByThePublishedRules)
{
    for (const auto& [text, cents] : std::vector<std::pair<std::string, double>>{
             {"386.314 5/4", 386.314},
             {"2", 1200.0},
             {" 3/2 perfect fifth", 701.9550009},
             {"\t5 / 4", 386.3137139},
             {"81/64! third", 407.8200035},
             {"-100.0", -100.0},
             {"7/8", -231.1740936},
             {"408.", 408.0},
             {"+.5", 0.5},
             {"1200.0cents", 1200.0},
             {"7.0195e2", 701.95},
             {"30000000000000000000/20000000000000000000", 701.9550009}}) {
        const Scale scale = scaleOf("! a.scl\n!\nA scale\n 1 note\n!\n" + text + "\n");
        EXPECT_NEAR(centsOf(scale.pitches.at(0)), cents, 1e-6) << text;
        EXPECT_EQ(scale.description, "A scale");
    }
}

TEST(ScaleFile, ReadsScalesOfAnySizeAndWithAnyLineEnds)
{
    const std::string text = "\n3\n400.\n800.\n3/1\n";
    for (const std::string& same :
         {text, "\xEF\xBB\xBF" + text, std::regex_replace(text, std::regex("\n"), "\r\n"),
          std::regex_replace(text, std::regex("\n"), "\r"), text.substr(0, text.size() - 1),
          text + "ignored\n", std::string("\n3\n\n400.\n!\n800.\n\n3/1\n")}) {
        const Scale scale = scaleOf(same);
        ASSERT_EQ(scale.pitches.size(), 3U) << same;
        EXPECT_NEAR(scale.period(), 1901.955, 1e-3);
        EXPECT_NEAR(scale.cents(4), 2301.955, 1e-3);
        EXPECT_NEAR(scale.cents(-1), 800.0 - 1901.955, 1e-3);
        EXPECT_NEAR(scale.cents(-3), -1901.955, 1e-3);
    }
    EXPECT_EQ(scaleOf("Only one note\n0\n").cents(-5), 0.0);
}

TEST(ScaleFile, NamesTheLineTheColumnAndWhatStandsThere)
{
    for (const auto& [text, error] : std::vector<std::pair<std::string, std::string>>{
             {"", "f: the scale has no description and no number of notes"},
             {"a\n", "f, line 1: the scale has no number of notes"},
             {"12\n100.0\n", "f, line 2, column 1: \"100.0\" is not a number of notes from 0 to"},
             {"a\n 129\n", "f, line 2, column 2: \" 129\" is not a number of notes"},
             {"a\n2\n5/4\n", "f, line 3: the scale ends after 1 of 2 pitches"},
             {"a\n1\n 386,3\n", "f, line 3, column 5: \" 386,3\" is not a pitch: write cents"},
             {"a\n1\n5/x\n", "f, line 3, column 3: \"5/x\" is not a pitch"},
             {"a\n1\n 5/0\n", "f, line 3, column 4: \" 5/0\" is not a pitch above 0"},
             {"a\n1\n-3/2\n", "f, line 3, column 1: \"-3/2\" is not a pitch"},
             {"a\n1\n1e3\n", "f, line 3, column 2: \"1e3\" is not a pitch"},
             {"a\n1\n1.2.3\n", "f, line 3, column 1: \"1.2.3\" is not a pitch"},
             {"a\n1\n1.0e999\n", "f, line 3, column 1: \"1.0e999\" is not a pitch"},
             {"a\n1\ninf.\n", "f, line 3, column 1: \"inf.\" is not a pitch"},
             {"a\n1\n" + std::string(400, '9') + "/2\n",
              "f, line 3, column 1: \"" + std::string(40, '9') +
                  "...\" has a number that is too large"},
             {std::string("\xFF\xFE"
                          "a\0",
                          4),
              "f: is written in UTF-16"}})
        EXPECT_THAT(scaleErrorOf(readScale, text), StartsWith(error));
}

TEST(ScaleFile, WritesWhatItReadsBackExactly)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> cents(-50.0, 5000.0);
    std::uniform_int_distribution<int> whole(1, 100000), size(0, 128), kind(0, 1);
    for (int trial = 0; trial < 200; ++trial) {
        Scale scale{"! Grün \"" + std::to_string(trial), {}, {}};
        for (int i = size(random); i > 0; --i) {
            if (kind(random) == 0)
                scale.pitches.emplace_back(Cent(cents(random)));
            else
                scale.pitches.emplace_back(Ratio(whole(random), whole(random)));
        }
        const Scale copy = scaleOf(writeScale(scale));
        ASSERT_EQ(copy.pitches.size(), scale.pitches.size());
        EXPECT_EQ(copy.description, scale.description);
        for (std::size_t i = 0; i < copy.pitches.size(); ++i) {
            EXPECT_EQ(copy.pitches[i].index(), scale.pitches[i].index());
            EXPECT_EQ(centsOf(copy.pitches[i]), centsOf(scale.pitches[i]));
        }
        KeyMapping keys{whole(random) % 128,
                        whole(random) % 128,
                        whole(random) % 128,
                        whole(random) % 128,
                        std::abs(cents(random)) + 1.0,
                        {},
                        0};
        for (int i = size(random); i > 0; --i)
            keys.degrees.push_back(kind(random) == 0 ? std::nullopt : std::optional(i));
        keys.octaveDegree = keys.degrees.empty() ? 0 : 1 + whole(random) % 100;
        EXPECT_EQ(readMapping(bytesOf(writeMapping(keys, 12))), keys);
    }
}

TEST(ScaleTemperament, PlaysTheNextDegreeOnEachKeyFromMiddleC)
{
    const ScaleTemperament nineteen(equalSteps(19, 1200.0));
    EXPECT_NEAR(soundOf(nineteen, 60), 261.6255653, 1e-7);
    EXPECT_NEAR(soundOf(nineteen, 79), 523.2511306, 1e-7);
    EXPECT_NEAR(soundOf(nineteen, 41), 130.8127827, 1e-7);
    EXPECT_FALSE(nineteen.repeatsEveryOctave());
    EXPECT_TRUE(ScaleTemperament(equalSteps(6, 600.0)).repeatsEveryOctave());
    EXPECT_FALSE(ScaleTemperament(equalSteps(12, 1201.0)).repeatsEveryOctave());

    Scale meantone = equalSteps(12, 1200.0);
    meantone.pitches[3] = Ratio(5, 4);
    const ScaleTemperament twelve(meantone);
    ASSERT_TRUE(twelve.repeatsEveryOctave());
    EXPECT_EQ(twelve.getTuning(4).ratio(), 1.25);
    for (int key = 0; key < 128; ++key)
        EXPECT_DOUBLE_EQ(twelve.pitchAt(key), twelve.Temperament::pitchAt(key)) << key;
}

TEST(ScaleTemperament, FollowsItsKeyboardMapping)
{
    // Seven white keys to the octave of nineteen steps; the black ones are silent.
    const KeyMapping white =
        readMapping(bytesOf("12\n0\n127\n60\n69\n440\n19\n0\nx\n3\nx\n6\n8\nX\n11\nx\n14\nx\n"));
    const ScaleTemperament diatonic(equalSteps(19, 1200.0), white);
    EXPECT_NEAR(soundOf(diatonic, 69), 440.0, 1e-9);
    EXPECT_NEAR(soundOf(diatonic, 57), 220.0, 1e-9);
    EXPECT_NEAR(soundOf(diatonic, 60), 440.0 * std::exp2(-14.0 / 19), 1e-9);
    EXPECT_NEAR(soundOf(diatonic, 64), 440.0 * std::exp2(-8.0 / 19), 1e-9);
    EXPECT_FALSE(diatonic.isMapped(61));
    EXPECT_FALSE(diatonic.isMapped(71)) << "missing at the end";

    // The repetition differs by the formal octave, and the reference lies far from the middle.
    const ScaleTemperament part(equalSteps(19, 1200.0),
                                readMapping(bytesOf("2\n50\n100\n60\n20\n100.\n5\n0\n1\n")));
    EXPECT_NEAR(soundOf(part, 62) / soundOf(part, 60), std::exp2(5.0 / 19), 1e-9);
    EXPECT_NEAR(soundOf(part, 60), 100.0 * std::exp2(20.0 * 5 / 19), 1e-6);
    EXPECT_NEAR(soundOf(part, 49), soundOf(ScaleTemperament(equalSteps(12, 1200.0)), 49), 1e-9)
        << "keys beyond the range keep their pitch";

    EXPECT_TRUE(
        ScaleTemperament(equalSteps(12, 1200.0),
                         readMapping(bytesOf(mapping("0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n"))))
            .repeatsEveryOctave());
}

TEST(ScaleTemperament, NeverHasAPitchThatIsNotFinite)
{
    for (const auto& [scale, keys] : std::vector<std::pair<std::string, std::string>>{
             {"a\n1\n999999.9\n", "0\n0\n127\n60\n60\n440\n0\n"},
             {"a\n1\n100.\n", "1\n0\n127\n60\n60\n1e308\n9999\n9999\n"},
             {"a\n1\n100.\n", "0\n0\n127\n127\n0\n1e-308\n0\n"},
             {"a\n1\n-999999.\n", "0\n0\n127\n0\n0\n440\n0\n"}})
        EXPECT_THROW(ScaleTemperament(scaleOf(scale), readMapping(bytesOf(keys))), FormatError)
            << scale << keys;
    EXPECT_THROW(ScaleTemperament(equalSteps(12, 1200.0), readMapping(bytesOf(mapping("")))),
                 FormatError)
        << "the reference key is silent";
}

TEST(MappingFile, NamesTheLineTheColumnAndWhatStandsThere)
{
    for (const auto& [text, error] : std::vector<std::pair<std::string, std::string>>{
             {"", "f, line 0: the mapping ends before the size of the mapping"},
             {"12\n0\n127\n60\n69\n", "f, line 5: the mapping ends before the frequency"},
             {"12\n0\n128\n", "f, line 3, column 1: \"128\" is not the last key, a number from 0"},
             {"12\n0\n127\n60\n69\n nan\n", "f, line 6, column 2: \" nan\" is not a frequency"},
             {"12\n0\n127\n60\n69\n0\n", "f, line 6, column 1: \"0\" is not a frequency"},
             {mapping("0\ny\n"), "f, line 10, column 1: \"y\" is not a degree of the scale"}})
        EXPECT_THAT(scaleErrorOf(readMapping, text), StartsWith(error));
}

TEST(ExtendedScaleFile, TakesTheReferenceAndTheNamesFromComments)
{
    const std::string plain = "! a.ascl\nThree\n3\n400.\n800.\n1200.\n";
    const auto extended = readExtendedScale(
        bytesOf(plain + "! @ABL NOTE_NAMES C \"E natural\" A♭\n!@ABL REFERENCE_PITCH 5 1 700.5\n"
                        "! @ABL NOTE_RANGE_BY_INDEX 1 2\n! ! @ABL REFERENCE_PITCH 1\n"));
    EXPECT_THAT(extended.scale.names, ElementsAre("C", "E natural", "A♭"));
    const ScaleTemperament temperament(extended.scale, extended.mapping);
    EXPECT_NEAR(soundOf(temperament, 64), 700.5, 1e-9);
    EXPECT_EQ(readExtendedScale(bytesOf(plain)).mapping, KeyMapping());
    for (const std::string arguments :
         {"", " 4 0", " x 0 440", " 4.5 0 440", " 4 0 0", " 99 0 440"})
        EXPECT_THAT(scaleErrorOf(readExtendedScale, plain + "! @ABL REFERENCE_PITCH" + arguments),
                    StartsWith("f, line 7, column 8: \"! @ABL REFERENCE_PITCH" + arguments +
                               "\" needs an octave"));
}

} // namespace velmora
