#include "import/hauptwerk1.h"

#include <gtest/gtest.h>

namespace {

using enum hauptwerk1::LineEnd;

std::string listed(const std::string& bytes, hauptwerk1::LineEnd lineEnd = CarriageReturnLineFeed)
{
    std::string result;
    for (const auto& [name, section] : hauptwerk1::readSections(bytes, lineEnd)) {
        result += "[" + name + "]";
        for (const auto& [key, value] : section)
            result += key + "=" + value + ";";
    }
    return result;
}

TEST(Hauptwerk1, ReadsSectionsLineByLine)
{
    const struct {
        std::string what, bytes, result;
    } rows[] = {
        {"pairs", "[A]\r\nk=1\r\n[B]\r\nk=a=b\r\nl=\r\n", "[A]k=1;[B]k=a=b;l=;"},
        {"a byte-order mark", "\xEF\xBB\xBF[A]\r\nk=1\r\n", "[A]k=1;"},
        {"what is before the first section", "k=1\r\n[A]\r\n", "[A]"},
        {"comments and other lines", "[A]\r\n;k=1\r\n\r\nfree text\r\n", "[A]"},
        {"a section that comes again", "[A]\r\nk=1\r\n[A]\r\nl=2\r\n", "[A]l=2;"},
        {"a last line without its end", "[A]\r\nk=1\r\nl=2", "[A]k=1;"},
        {"Unix line ends misread", "[Ab]\nk=12\n", "[A]k=1;"},
        {"lines too short to cut", "[\n=\n[]\r\n=\r\n", "[]=;"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(listed(row.bytes), row.result) << row.what;
    EXPECT_EQ(listed("[Ab]\nk=12\nl=3", LineFeed), "[Ab]k=12;l=3;");
}

} // namespace
