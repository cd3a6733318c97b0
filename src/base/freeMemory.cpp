#include "base/freeMemory.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

namespace {

constexpr std::uint64_t kUnlimited = std::numeric_limits<std::uint64_t>::max();

/// Returns the number behind a word of a file, or the first number if the word is empty.
std::optional<std::uint64_t> numberIn(const std::filesystem::path& file, std::string_view word = "")
{
    std::ifstream stream(file);
    for (std::string text; !word.empty() && text != word;)
        if (!(stream >> text))
            return std::nullopt;
    std::uint64_t number = 0;
    return stream >> number ? std::optional(number) : std::nullopt;
}

/// What a control group's files are called.
struct Names {
    const char *folder, *limit, *usage, *cache;
};

/// What version 2 of control groups calls them, and version 1.
constexpr Names kUnified{"", "memory.max", "memory.current", "inactive_file"};
constexpr Names kSeparate{"memory", "memory.limit_in_bytes", "memory.usage_in_bytes",
                          "total_inactive_file"};

/// Returns what a group and those around it leave of their limits. The files that a group has read
/// but no longer uses count as its memory, but make room when it is needed.
std::uint64_t leftByGroups(const std::filesystem::path& root, const std::string& group,
                           const Names& names)
{
    std::uint64_t left = kUnlimited;
    const std::filesystem::path top = root / "sys/fs/cgroup" / names.folder;
    for (std::filesystem::path path = std::filesystem::path(group).relative_path();;
         path = path.parent_path()) {
        const auto limit = numberIn(top / path / names.limit);
        const auto usage = numberIn(top / path / names.usage);
        if (limit && usage) {
            const std::uint64_t cache =
                numberIn(top / path / "memory.stat", names.cache).value_or(0);
            const std::uint64_t used = *usage - std::min(*usage, cache);
            left = std::min(left, *limit - std::min(*limit, used));
        }
        if (path.empty())
            return left;
    }
}

} // namespace

std::uint64_t freeMemory(const std::filesystem::path& root)
{
    std::uint64_t left = kUnlimited;
    if (const auto kilobytes = numberIn(root / "proc/meminfo", "MemAvailable:"))
        left = *kilobytes * 1024;

    // Each line has the form "number:controllers:group".
    std::ifstream groups(root / "proc/self/cgroup");
    for (std::string line; std::getline(groups, line);) {
        const std::size_t first = line.find(':');
        const std::size_t second = line.find(':', first + 1);
        if (first == std::string::npos || second == std::string::npos)
            continue;
        const std::string controllers = line.substr(first + 1, second - first - 1);
        const std::string group = line.substr(second + 1);
        if (controllers.empty())
            left = std::min(left, leftByGroups(root, group, kUnified));
        else if (controllers == "memory")
            left = std::min(left, leftByGroups(root, group, kSeparate));
    }
    return left;
}

} // namespace velmora
