#include "import/RIFF.h"

#include "base/FormatError.h"
#include "support/RiffBytes.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace riff;
using RIFF::code;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;

namespace {

/// "list(chunk=data ...)": the tree below an element.
std::string shown(const RIFF::Chunk& element)
{
    const std::string type = number(element.getType(), 4).c_str();
    const auto* list = dynamic_cast<const RIFF::List*>(&element);
    const auto data = element.read<char>();
    if (list == nullptr)
        return type + "=" + std::string(data.begin(), data.end());
    std::string children;
    for (const auto& child : list->children)
        children += (children.empty() ? "" : " ") + shown(*child);
    return type + "(" + children + ")";
}

std::string tree(const std::string& bytes)
{
    return shown(RIFF::File(view(bytes)));
}

template <class Work> std::string errorOf(Work&& work)
{
    try {
        work();
    } catch (const FormatError& error) {
        return error.inFile("f");
    }
    return "none";
}

} // namespace

TEST(RIFF, ReadsTheTree)
{
    EXPECT_EQ(tree(file("bank", chunk("odd ", "abc") + chunk("zero", "") +
                                    list("deep", chunk("x   ", "1") + list("void", "")) +
                                    chunk("last", "z"))),
              "bank(odd =abc zero= deep(x   =1 void()) last=z)");
    // The pad byte of the last chunk is missing from the size of its list.
    EXPECT_EQ(tree(file("bank",
                        "LIST" + number(13, 4) + "deep" + chunk("odd ", "1") + chunk("next", "n"))),
              "bank(deep(odd =1) next=n)");

    const std::string bytes = file("bank", list("deep", chunk("data", "12345")));
    const RIFF::File root(view(bytes));
    const auto* deep = root.get<RIFF::List>(code("deep"));
    const auto* data = deep->get<RIFF::Chunk>(code("data"));
    EXPECT_EQ(std::pair(root.id, root.offset), std::pair(code("RIFF"), 12U));
    EXPECT_EQ(std::tuple(deep->id, deep->size, deep->offset), std::tuple(code("LIST"), 18U, 24U));
    EXPECT_EQ(std::tuple(data->id, data->size, data->offset), std::tuple(code("data"), 5U, 32U));
    EXPECT_THAT(data->read<std::uint16_t>(), ElementsAre(0x3231, 0x3433)) << "whole records only";
    EXPECT_THAT(data->read<std::uint64_t>(), IsEmpty());
    std::array<std::byte, 4> part{};
    EXPECT_EQ(data->read(3, part), 2U) << "a part ends with the data";
    EXPECT_EQ(part[1], std::byte{'5'});
    EXPECT_EQ(data->read(5, part), 0U);
}

TEST(RIFF, FindsByIdAndListType)
{
    const std::string bytes = file("bank", chunk("both", "") + list("both", "") +
                                               list("list", chunk("in  ", "")) + list("list", ""));
    const RIFF::File root(view(bytes));
    EXPECT_EQ(root.get<RIFF::Chunk>(code("both")), root.children[0].get());
    EXPECT_THAT(root.get<RIFF::List>(code("both")), IsNull()) << "the first is no list";
    EXPECT_THAT(root.all<RIFF::List>(code("both")), ElementsAre(nullptr, root.children[1].get()));
    EXPECT_EQ(root.get<RIFF::Chunk>(code("list")), root.children[2].get()) << "a list is a chunk";
    EXPECT_EQ(root.all<RIFF::List>(code("list")).size(), 2U);
    EXPECT_THAT(root.get<RIFF::Chunk>(code("in  ")), IsNull()) << "no grandchild";
    EXPECT_THAT(root.all<RIFF::List>(code("none")), IsEmpty());
}

TEST(RIFF, EndsDataWhereTheParentAndTheFileEnd)
{
    const std::string bytes =
        file("bank", list("deep", chunk("data", "12345678")) + chunk("next", "n"));
    const auto resized = [&bytes](std::size_t at, std::size_t size) {
        return std::string(bytes).replace(at, 4, number(size, 4));
    };
    for (const auto& [broken, expected] : {
             std::pair{std::string(), "()"},
             {bytes.substr(0, 10), "()"},
             {bytes.substr(0, 35), "bank(deep(data=123))"},
             {bytes.substr(0, 45), "bank(deep(data=12345678))"},
             {resized(4, 0), "bank()"},
             {resized(4, 0x7FFFFFFF), "bank(deep(data=12345678) next=n)"},
             {resized(4, bytes.size() - 4) + "left12345678", "bank(deep(data=12345678) next=n)"},
             {resized(28, 12), "bank(deep(data=12345678))"},
             {resized(28, 0xFFFFFFFF), "bank(deep(data=12345678))"},
             {resized(16, 0x7FFFFFFF), "bank(deep(data=12345678 next=n))"},
         })
        EXPECT_EQ(tree(broken), expected);

    std::string nested;
    for (int i = 0; i < 32; ++i)
        nested = list("deep", nested);
    EXPECT_EQ(errorOf([&] { tree(file("bank", nested)); }), "none");
    EXPECT_EQ(errorOf([&] { tree(file("bank", list("deep", nested))); }),
              "f, byte 396: lists are nested too deeply");
}

TEST(RIFF, ReadsFilesThatShrinkOrAreNone)
{
    const auto folder = std::filesystem::temp_directory_path();
    const auto path = folder / ("riff" + std::to_string(getpid()));
    std::ofstream(path, std::ios::binary) << file("bank", chunk("data", std::string(9000, 'd')));
    const RIFF::File root(path);
    const auto* data = root.get<RIFF::Chunk>(code("data"));
    EXPECT_EQ(data->read<char>().size(), 9000U);
    std::filesystem::resize_file(path, 30);
    EXPECT_EQ(data->read<char>().size(), 10U);
    std::filesystem::remove(path);

    for (const auto& [wrong, reason] :
         {std::pair{path, "f: cannot be read (No such file or directory)"},
          {folder, "f: cannot be read (Is a directory)"},
          {std::filesystem::path("/dev/null"), "f: is not a RIFF file"}}) {
        const RIFF::File none(wrong);
        EXPECT_THAT(none.get<RIFF::Chunk>(code("data")), IsNull());
        EXPECT_EQ(errorOf([&none] { none.check(); }), reason);
    }
}
