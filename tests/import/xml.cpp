#include "import/xml.h"

#include "base/FormatError.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

const std::string kDeclaration = "<?xml version=\"1.0\"?>\n";

/// What the printer makes of the root element of a whole file, or why it is refused.
std::string printed(const std::string& file)
try {
    const xml::Tree tree = xml::parseXML(xml::Buffer(file));
    testing::internal::CaptureStdout();
    tree.root().debug(0);
    return testing::internal::GetCapturedStdout();
} catch (const FormatError& error) {
    return error.inFile("f");
}

TEST(Xml, ReadsElementsAttributesAndText)
{
    const struct {
        std::string what, text, result;
    } rows[] = {
        {"attributes by name", "<a y=\"2\" x=\"1\" y=\"3\" >t</a>", "a { x='1', y='3', } = 't'\n"},
        {"white space in a name", "<a x y=\"1\"></a>", "a { xy='1', } = ''\n"},
        {"children", "<a><b>1</b><c><d></d></c></a>",
         "a [\n\tb = '1'\n\tc [\n\t\td = ''\n\t]\n]\n"},
        {"entities stay", "<a x=\"&lt;\">&amp;</a>", "a { x='&lt;', } = '&amp;'\n"},
        {"the end tag's name is not compared", "<a>1</b>", "a = '1'\n"},
        {"unterminated", "<a x=\"1\"><b>2", "a { x='1', } [\n\tb = '2'\n]\n"},
        {"cut short in a tag", "<a><b x=\"1", "a [\n\tb { x='1', } = ''\n]\n"},
        {"cut short behind a bracket", "<a>1<", "a [\n\t = ''\n]\n"},
        {"a 0 ends what is open", "<a><b>1\0<c>2</c></a>"s, "a [\n\tb = '1'\n\tc = '2'\n]\n"},
        {"empty tags swallow a bracket", "<a><b /><c>1</c>2</a>", "a [\n\tb = ''\n]\n"},
        {"a slash without a blank is of the name", "<a><b/>x</a>", "a [\n\tb/ = ''\n]\n"},
        {"a comment is an element", "<a><!-- x --><b>1</b></a>",
         "a [\n\t!-- [\n\t\tb = '1'\n\t]\n]\n"},
        {"nothing", "", " = ''\n"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(printed(kDeclaration + row.text), row.result) << row.what;
    EXPECT_EQ(printed("<a>1</a>"), " = ''\n") << "without a declaration the root is lost";
    EXPECT_EQ(printed("\xEF\xBB\xBF<?xml?>\r\n<a>1</a>"), "a = '1'\n") << "byte-order mark";

    const std::string mixed = "<a>1< b>x</b>2<c />  <d>3</d>4</a>";
    EXPECT_EQ(xml::parseXML(xml::Buffer(kDeclaration + mixed)).root().text(), "12d>3")
        << "text around children is put together, and the sibling of an empty tag is lost";
}

TEST(Xml, RefusesWhatItCannotRead)
{
    std::string nested;
    for (int i = 0; i < 100'000; ++i)
        nested += "<a>";
    const std::string quotes = ": the value of an attribute is not in double quotes";
    EXPECT_EQ(printed(kDeclaration + "<a>\n<b x='1'></b></a>"), "f, line 3" + quotes);
    EXPECT_EQ(printed(kDeclaration + "<a x= \"1\">"), "f, line 2" + quotes);
    EXPECT_EQ(printed(kDeclaration + nested), "f, line 2: elements are nested too deeply");
}

} // namespace
