#include "tuning/KeyTuningFile.h"

#include "base/FormatError.h"

#include <gmock/gmock.h>

namespace velmora {

using namespace testing;

namespace {

KeyTunings tuningsOf(const std::string& text)
{
    return readKeyTunings(std::as_bytes(std::span(text)));
}

std::string tuningErrorOf(const std::string& text)
{
    try {
        tuningsOf(text);
        return "none";
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
}

} // namespace

TEST(KeyTuningFile, TakesTheExactTuningAndRepeatsIt)
{
    const auto exact = tuningsOf("; a comment\r\n[Scale Begin]\r\nFormat = \"AnaMark-TUN\"\r\n"
                                 "[Info]\r\nName = \"Stretched; Grün\"\r\n"
                                 "[Tuning]\nnote 69 = 1\n[exact tuning]\nBaseFreq = 8.5\n"
                                 "note 1 = 101.5 ; higher\nnote 12=1.21e3\nnote 200 = 5\n"
                                 "[Scale End]\n[Tuning]\nno more\n");
    EXPECT_DOUBLE_EQ(exact.hertz[0], 8.5);
    EXPECT_DOUBLE_EQ(exact.hertz[1], 8.5 * std::exp2(101.5 / 1200.0));
    EXPECT_DOUBLE_EQ(exact.hertz[2], 8.5 * std::exp2(200.0 / 1200.0)) << "not given";
    EXPECT_DOUBLE_EQ(exact.hertz[25], 8.5 * std::exp2((2 * 1210.0 + 101.5) / 1200.0));

    const auto rounded = tuningsOf("[Tuning]\nnote 69 = 6950\n");
    EXPECT_NEAR(rounded.hertz[69], 440.0 * std::exp2(50.0 / 1200.0), 1e-9);
    EXPECT_NEAR(rounded.hertz[70], 440.0 * std::exp2(1.0 / 12.0), 1e-9);
}

TEST(KeyTuningFile, NamesTheLineTheColumnAndWhatStandsThere)
{
    for (const auto& [text, error] : std::vector<std::pair<std::string, std::string>>{
             {"", "f: there is no section [Exact Tuning] or [Tuning]"},
             {"[Functional Tuning]\nnote 0=\"#=0\"\n", "f: the pitches are only given by formulas"},
             {"[Tuning]\n note 5\n", "f, line 2, column 2: \" note 5\" has no ="},
             {"[Tuning]\nnote 5 = x\n", "f, line 2, column 10: \"note 5 = x\" is not a number"},
             {"[Exact Tuning]\nbasefreq = 0\n", "f: the pitch of key 0 is beyond all bounds"},
             {"[Exact Tuning]\nnote 0 = 9e9\n", "f: the pitch of key 0 is beyond all bounds"}})
        EXPECT_THAT(tuningErrorOf(text), StartsWith(error));
}

} // namespace velmora
