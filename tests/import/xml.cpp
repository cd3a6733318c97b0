#include "import/xml.h"

#include "base/FormatError.h"
#include "support/Log.h"

#include <regex>

namespace velmora {

namespace {

using namespace std::string_literals;

/// Returns the logged tree of a file, or why the file is rejected.
std::string shown(const std::string& file)
try {
    const xml::Tree tree = xml::parseXML(xml::Buffer(file));
    return std::regex_replace(logOf([&] { tree.root().debug(0); }), std::regex("import: "), "");
} catch (const FormatError& error) {
    return error.inFile("f");
}

TEST(Xml, ReadsElementsAttributesAndText)
{
    const struct {
        std::string what, text, result;
    } rows[] = {
        {"attributes", "<a y=\"2\" x z=\"1\" y=\"3\" >t</a>", "a { xz='1', y='3', } = 't'\n"},
        {"entities stay", "<a x=\"&lt;\">&amp;</a>", "a { x='&lt;', } = '&amp;'\n"},
        {"end tags are not compared", "<a><b>1</c><d><e></d></e></a>",
         "a [\n\tb = '1'\n\td [\n\t\te = ''\n\t]\n]\n"},
        {"truncated in a tag", "<a><b x=\"1", "a [\n\tb { x='1', } = ''\n]\n"},
        {"truncated after a bracket", "<a>1<", "a [\n\t = ''\n]\n"},
        {"a 0 character ends all open elements", "<a><b>1\0<c>2</c></a>"s,
         "a [\n\tb = '1'\n\tc = '2'\n]\n"},
        {"a slash without a space is part of the name", "<a><b/>x</a>", "a [\n\tb/ = ''\n]\n"},
        {"a comment is an element", "<a><!-- x --><b>1</b>", "a [\n\t!-- [\n\t\tb = '1'\n\t]\n]\n"},
        {"nothing", "", " = ''\n"},
        {"single quotes", "<a>\n<b x='1'></b></a>",
         "f, line 3: the value of an attribute is not in double quotes"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(shown("<?xml version=\"1.0\"?>\n" + row.text), row.result) << row.what;
    EXPECT_EQ(shown("<a>1</a>"), " = ''\n") << "without a declaration the root is lost";
    EXPECT_EQ(shown("\xEF\xBB\xBF<?xml?>\r\n<a>1</a>"), "a = '1'\n") << "byte-order mark";

    const std::string mixed = "<?xml?>\n<a>1< b>x</b>2<c />  <d>3</d>4</a>";
    EXPECT_EQ(xml::parseXML(xml::Buffer(mixed)).root().text(), "12d>3")
        << "the text around children is joined; the sibling of an empty tag is lost";
}

TEST(Xml, RejectsDeepNesting)
{
    std::string nested = "<?xml?>\n";
    for (int i = 0; i < 100'000; ++i)
        nested += "<a>";
    EXPECT_EQ(shown(nested), "f, line 2: elements are nested too deeply");
}

} // namespace

} // namespace velmora
