#include "import/ArchiveTree.h"

#include "base/FormatError.h"
#include "support/zipArchive.h"

#include <gmock/gmock.h>

#include <random>
#include <span>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

std::string textOf(const std::vector<std::byte>& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Opens an archive that stays in memory.
struct OpenedArchive {
    explicit OpenedArchive(std::string zip, std::uint64_t free = UINT64_MAX)
        : bytes(std::move(zip)), memory([free] { return free; }),
          tree(openMemory(std::as_bytes(std::span(bytes))), "set.orgue", memory)
    {
    }

    std::string bytes;
    MemoryGuard memory;
    ArchiveTree tree;
};

std::string noise(std::size_t size)
{
    std::mt19937 random(1);
    std::string result(size, '\0');
    for (char& byte : result)
        byte = static_cast<char>(random());
    return result;
}

} // namespace

TEST(ArchiveTree, ReadsFilesInAnyOrder)
{
    const std::string large = noise(3'000'000); // more than is unpacked at once
    // What looks like the header of another file must not be taken for it.
    const std::string trap = zipArchive({{"b.txt", "wrong"}}, ZipMethod::Stored);
    for (const ZipMethod method : {ZipMethod::Stored, ZipMethod::Deflated}) {
        const OpenedArchive archive(zipArchive(
            {{"Pipes/A.wav", large}, {"trap", trap}, {"b.txt", "right"}, {"empty", ""}}, method));
        const ArchiveTree& tree = archive.tree;
        EXPECT_THAT(tree.names(), ElementsAre("Pipes/A.wav", "trap", "b.txt", "empty"));
        EXPECT_EQ(textOf(tree.read("b.txt")), "right");
        EXPECT_EQ(textOf(tree.read(".\\pipes\\a.WAV")), large) << "as other systems spell it";
        EXPECT_EQ(textOf(tree.read("empty")), "");
        EXPECT_EQ(textOf(tree.read("trap")), trap);
        EXPECT_FALSE(tree.contains("Pipes/../b.txt"));
        EXPECT_EQ(tree.displayName("pipes\\c.wav"), "set.orgue/pipes/c.wav");
        EXPECT_THAT([&] { tree.read("c.wav"); },
                    ThrowsMessage<FormatError>(HasSubstr("is not in the archive")));
    }
}

TEST(ArchiveTree, RefusesWhatCannotBeTrusted)
{
    for (const std::string name : {"../a", "a/../../b", "/etc/a", "C:/a", "a/..\\b"})
        EXPECT_THAT(
            [&] {
                OpenedArchive(zipArchive({{name, ""}}, ZipMethod::Stored));
            },
            ThrowsMessage<FormatError>(HasSubstr("leads out of the archive: \"" + name)))
            << name;

    const std::string zip = zipArchive({{"a", noise(100)}, {"b", "bb"}}, ZipMethod::Stored);
    EXPECT_THROW(OpenedArchive(zip.substr(0, zip.size() - 30)), FormatError) << "cut short";
    EXPECT_THROW(OpenedArchive("no archive"), FormatError);
    std::string damaged = zip;
    damaged[80] = static_cast<char>(~damaged[80]);
    const OpenedArchive archive(damaged);
    EXPECT_THROW(archive.tree.read("a"), FormatError) << "the checksum differs";
    EXPECT_EQ(textOf(archive.tree.read("b")), "bb");

    const OpenedArchive bomb(
        zipArchive({{"zeros", std::string(20'000'000, '\0')}}, ZipMethod::Deflated), 10'000'000);
    EXPECT_LT(bomb.bytes.size(), 100'000U);
    EXPECT_THROW(bomb.tree.read("zeros"), MemoryShortage);
}

} // namespace velmora
