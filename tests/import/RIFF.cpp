#include "import/RIFF.h"

#include "base/FormatError.h"
#include "support/RiffBytes.h"

#include <gmock/gmock.h>

namespace velmora {

using namespace riff;
using RIFF::code;
using testing::ElementsAre;

namespace {

const auto view = [](const std::string& bytes) { return std::as_bytes(std::span(bytes)); };

/// Shows the tree below an element as "list(chunk(data)...)".
std::string shown(const RIFF::Chunk& element)
{
    const auto data = element.read<char>();
    std::string inside(data.begin(), data.end());
    if (const auto* list = dynamic_cast<const RIFF::List*>(&element)) {
        inside.clear();
        for (const auto& child : list->children())
            inside += shown(*child);
    }
    return numbers({element.type()}, 4) + "(" + inside + ")";
}

} // namespace

TEST(RIFF, LimitsDataToTheParentAndTheFile)
{
    const std::string good = file("bank", list("deep", chunk("data", "1234")) + chunk("next", "n"));
    const auto resized = [&good](std::size_t at, std::size_t size) {
        return std::string(good).replace(at, 4, numbers({size}, 4));
    };
    const std::string uncounted = "LIST\x0D" + std::string(3, '\0') + "deep" + chunk("odd ", "1");
    for (const auto& [what, bytes, expected] : {
             std::tuple{"file size of 0", resized(4, 0), "bank()"},
             {"odd sizes",
              file("bank", chunk("odd ", "abc") + chunk("zero", "") + list("void", "")),
              "bank(odd (abc)zero()void())"},
             {"uncounted pad byte", file("bank", uncounted + chunk("next", "n")),
              "bank(deep(odd (1))next(n))"},
             {"truncated data", good.substr(0, 35), "bank(deep(data(123)))"},
             {"file size too large", resized(4, 0x7FFFFFFF), "bank(deep(data(1234))next(n))"},
             {"bytes after the end", good + "left12345678", "bank(deep(data(1234))next(n))"},
             {"chunk longer than its list", resized(28, 12), "bank(deep(data(1234)))"},
             {"list size too large", resized(16, 0x7FFFFFFF), "bank(deep(data(1234)next(n)))"},
         })
        EXPECT_EQ(shown(RIFF::File(view(bytes))), expected) << what;
    std::string nested;
    for (int i = 0; i < 33; ++i)
        nested = list("deep", nested);
    EXPECT_THROW(RIFF::File(view(file("bank", nested))), FormatError) << "nested too deeply";
    const std::string zeroes((std::size_t{8} << 21) + 16, '\0');
    EXPECT_THROW(RIFF::File(view(file("bank", zeroes))), FormatError) << "too many chunks";
}

TEST(RIFF, FindsByIdAndListTypeAndReadsRecords)
{
    const std::string bytes = file("bank", chunk("both", "12345") + list("both", ""));
    const RIFF::File root(view(bytes));
    const auto* data = root.get<RIFF::Chunk>(code("both"));
    EXPECT_EQ(data, root.children()[0].get());
    EXPECT_EQ(root.get<RIFF::List>(code("both")), nullptr) << "the first is not a list";
    EXPECT_THAT(root.all<RIFF::List>(code("both")), ElementsAre(nullptr, root.children()[1].get()));
    EXPECT_TRUE(root.all<RIFF::List>(code("none")).empty());

    EXPECT_THAT(data->read<std::uint16_t>(), ElementsAre(0x3231, 0x3433)) << "whole records only";
    EXPECT_TRUE(data->read<std::uint64_t>().empty());
    const RIFF::File none("no such file");
    EXPECT_EQ(none.get<RIFF::Chunk>(code("both")), nullptr);
    EXPECT_THROW(none.check(), FormatError);
}

} // namespace velmora
