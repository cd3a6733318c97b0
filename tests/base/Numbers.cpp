#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>

#include <unistd.h>

TEST(Numbers, ReadALeadingNumberAsAtofDoes)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const std::string zeros(400, '0');
    const struct {
        std::string text;
        std::optional<double> value;
    } rows[] = {
        {"701.955", 701.955},
        {" \t\r\n\v\f3.5 cents", 3.5},
        {"+5", 5.0},
        {"-5", -5.0},
        {".5", 0.5},
        {"5.", 5.0},
        {"3,5", 3.0},
        {"1e3x", 1000.0},
        {"1e", 1.0},
        {"0x10", 16.0},
        {"1e-400", 0.0},
        {"0." + zeros + "1", 0.0},
        {"1e400", infinity},
        {"-1e400", -infinity},
        {"0001" + zeros, infinity},
        {"1" + zeros + "e-400", 1.0},
        {"inf", infinity},
        {std::string("7\0"
                     "8",
                     3),
         7.0},
        {"", std::nullopt},
        {" ", std::nullopt},
        {"- 5", std::nullopt},
        {"--5", std::nullopt},
        {"+-5", std::nullopt},
        {"e5", std::nullopt},
        {"twelve", std::nullopt},
    };
    for (const auto& row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.value) << '"' << row.text << '"';
    EXPECT_TRUE(std::isnan(leadingNumber("nan").value_or(0.0)));
    EXPECT_EQ(leadingNumber(std::string_view("3.55").substr(0, 3)), 3.5) << "ends with its view";
}

TEST(Numbers, ReadALeadingIntegerAsAtoiDoes)
{
    const struct {
        std::string_view text;
        std::optional<int> value;
    } rows[] = {
        {" 12 notes", 12},
        {"\t+12", 12},
        {"-12.9", -12},
        {"012", 12},
        {"0x10", 0},
        {"1e3", 1},
        {"2147483648", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"-99999999999999999999", -2147483647 - 1},
        {"", std::nullopt},
        {"+", std::nullopt},
        {"+-1", std::nullopt},
        {"-+1", std::nullopt},
        {"- 1", std::nullopt},
        {"twelve", std::nullopt},
    };
    for (const auto& row : rows)
        EXPECT_EQ(leadingInteger(row.text), row.value) << '"' << row.text << '"';
}

TEST(Numbers, DoNotFollowTheLocale)
{
    // German writes 3,5. Its locale is seldom installed, so it is made here.
    const std::string folder = testing::TempDir() + "velmora-locales-" + std::to_string(getpid());
    std::filesystem::create_directories(folder);
    const std::string make = "localedef -i de_DE -f UTF-8 " + folder + "/de_DE.UTF-8 2>/dev/null";
    if (std::system(make.c_str()) != 0)
        GTEST_SKIP() << "the sources of locales are not installed";
    setenv("LOCPATH", folder.c_str(), 1);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"), nullptr);
    EXPECT_EQ(std::strtod("3.5", nullptr), 3.0) << "the locale has no effect";
    EXPECT_EQ(leadingNumber("3.5"), 3.5);
    EXPECT_EQ(leadingNumber("3,5"), 3.0);
    std::setlocale(LC_NUMERIC, "C");
    std::filesystem::remove_all(folder);
}
