#include "import/hauptwerk1.h"

#include <gtest/gtest.h>

namespace {

using namespace hauptwerk1;
using enum LineEnd;

TEST(Hauptwerk1, ReadsSectionsLineByLine)
{
    const struct {
        std::string what, bytes;
        LineEnd lineEnd;
        Sections sections;
    } rows[] = {
        {"sections and pairs",
         "[A]\r\nk=1\r\n[B]\r\nk=a=b\r\nl=\r\n",
         CarriageReturnLineFeed,
         {{"A", {{"k", "1"}}}, {"B", {{"k", "a=b"}, {"l", ""}}}}},
        {"a byte-order mark",
         "\xEF\xBB\xBF[A]\r\nk=1\r\n",
         CarriageReturnLineFeed,
         {{"A", {{"k", "1"}}}}},
        {"what is before the first section", "k=1\r\n[A]\r\n", CarriageReturnLineFeed, {{"A", {}}}},
        {"comments and other lines",
         "[A]\r\n;k=1\r\n\r\nfree text\r\n",
         CarriageReturnLineFeed,
         {{"A", {}}}},
        {"a section that comes again",
         "[A]\r\nk=1\r\n[A]\r\nl=2\r\n",
         CarriageReturnLineFeed,
         {{"A", {{"l", "2"}}}}},
        {"a last line without its end",
         "[A]\r\nk=1\r\nl=2",
         CarriageReturnLineFeed,
         {{"A", {{"k", "1"}}}}},
        {"Unix line ends misread", "[Ab]\nk=12\n", CarriageReturnLineFeed, {{"A", {{"k", "1"}}}}},
        {"Unix line ends", "[Ab]\nk=12\nl=3", LineFeed, {{"Ab", {{"k", "12"}, {"l", "3"}}}}},
        {"lines too short to cut", "[\n=\n[]\r\n=\r\n", CarriageReturnLineFeed, {{"", {{"", ""}}}}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(readSections(row.bytes, row.lineEnd), row.sections) << row.what;
}

} // namespace
