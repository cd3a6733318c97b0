#include "base/File.h"
#include "base/FormatError.h"
#include "base/MemoryGuard.h"
#include "base/freeMemory.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <fstream>

namespace velmora {

namespace {

constexpr std::uint64_t kMega = 1 << 20;

/// A folder that is removed with all that is in it.
class Folder {
public:
    Folder() : path_(testing::TempDir() + "velmora-memory-" + std::to_string(getpid()))
    {
        std::filesystem::create_directories(path_);
    }
    ~Folder() { std::filesystem::remove_all(path_); }

    std::filesystem::path write(const std::string& name, const std::string& text) const
    {
        const auto file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
        return file;
    }

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

std::string whyUnreadable(const std::filesystem::path& path)
{
    try {
        readFile(path);
        return "";
    } catch (const FormatError& error) {
        return error.what();
    }
}

} // namespace

TEST(File, ReadsOnlyRegularFiles)
{
    const Folder folder;
    const auto pipe = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder.path() / "endless");
    EXPECT_EQ(whyUnreadable(folder.write("file", "text")), "");
    EXPECT_EQ(whyUnreadable("/proc/self/status"), "") << "has a size of 0, but contents";
    EXPECT_EQ(whyUnreadable(pipe), "is a pipe or a device, not a file");
    EXPECT_EQ(whyUnreadable(folder.path() / "endless"), "is a pipe or a device, not a file");
    EXPECT_EQ(whyUnreadable(folder.path()), "cannot be read (Is a directory)");
    EXPECT_EQ(whyUnreadable("/none"), "cannot be read (No such file or directory)");
}

TEST(FreeMemory, IsTheLeastThatTheSystemAndItsGroupsLeave)
{
    const Folder folder;
    EXPECT_EQ(freeMemory(folder.path()), UINT64_MAX) << "nothing is known";
    folder.write("proc/meminfo", "MemTotal: 9000 kB\nMemAvailable:  3000 kB\n");
    EXPECT_EQ(freeMemory(folder.path()), 3000 * 1024U);

    folder.write("proc/self/cgroup", "2:cpu:/\n1:memory:/a/b\n0::/c:d\n");
    folder.write("sys/fs/cgroup/memory/a/memory.limit_in_bytes", "5000");
    folder.write("sys/fs/cgroup/memory/a/memory.usage_in_bytes", "4900");
    folder.write("sys/fs/cgroup/memory/a/memory.stat", "inactive_file 1\ntotal_inactive_file 900");
    EXPECT_EQ(freeMemory(folder.path()), 1000U) << "a group around that of the program";
    folder.write("sys/fs/cgroup/c:d/memory.max", "max");
    folder.write("sys/fs/cgroup/c:d/memory.current", "70");
    EXPECT_EQ(freeMemory(folder.path()), 1000U) << "no limit";
    folder.write("sys/fs/cgroup/c:d/memory.max", "60");
    EXPECT_EQ(freeMemory(folder.path()), 0U) << "more is used than permitted";
}

TEST(MemoryGuard, RefusesWhatDoesNotFitBesideWhatIsTaken)
{
    std::uint64_t free = 80 * kMega;
    MemoryGuard guard([&] { return free; });
    EXPECT_EQ(guard.available(), 70 * kMega) << "an eighth is left to others";
    guard.require(10 * kMega);
    guard.require(20 * kMega);
    free = 40 * kMega; // what was granted is now in use
    guard.require(35 * kMega);
    free = 8 * kMega;
    try {
        guard.require(8 * kMega);
        FAIL();
    } catch (const MemoryShortage& shortage) {
        EXPECT_STREQ(shortage.what(), "needs 8 MB more of memory, but only 7 MB are free; unload "
                                      "other instruments or close other programs");
    }
    free = 1024 * kMega;
    guard.require(512 * kMega); // found out again
    EXPECT_EQ(memoryText(5 * 1024 * kMega + 512 * kMega), "5.5 GB");
}

} // namespace velmora
