#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <vector>

namespace velmora {

TEST(Numbers, AreReadAsAtofAndAtoiDo)
{
    for (const auto& [text, number, integer] : std::vector<std::tuple<const char*, double, int>>{
             {" \t\r\n\v\f3.5 cents", 3.5, 3},
             {"+0x10", 16.0, 0},
             {"2147483648", 2147483648.0, 2147483647},
             {"-4294967308", -4294967308.0, -2147483647 - 1}}) {
        EXPECT_EQ(leadingNumber(text), number) << text;
        EXPECT_EQ(leadingInteger(text), integer) << text;
    }
    for (const char* text : {"", " ", "+", "- 5", "--5", "+-5", "twelve"}) {
        EXPECT_EQ(leadingNumber(text), std::nullopt) << text;
        EXPECT_EQ(leadingInteger(text), std::nullopt) << text;
    }
    EXPECT_EQ(leadingNumber(std::string_view("3.55").substr(0, 3)), 3.5)
        << "must not read past the view";
}

TEST(Numbers, AreReadIndependentlyOfTheLocale)
{
    // German has a decimal comma. The locale is rarely installed, so it is compiled here.
    const std::string folder = testing::TempDir() + "velmora-locale";
    if (std::system(("localedef -i de_DE -f UTF-8 " + folder + " 2>/dev/null").c_str()) != 0)
        GTEST_SKIP() << "the locale sources are not installed";
    setenv("LOCPATH", testing::TempDir().c_str(), 1);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "velmora-locale"), nullptr);
    EXPECT_EQ(std::strtod("3.5", nullptr), 3.0) << "the locale has no effect";
    EXPECT_EQ(leadingNumber("3.5"), 3.5);
    std::filesystem::remove_all(folder);
}

} // namespace velmora
