#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velmora {

/// Finds the files that an organ definition names. Definitions are written on systems that ignore
/// letter case and use backslashes. Each folder is listed only once.
class SampleFiles {
public:
    /// Returns the path of `relative` inside `folder`. Components are separated by '/' or '\' and
    /// may differ from the names on disk in the case of ASCII letters and in their encoding. If
    /// there is no such file, returns the path that it should have.
    std::filesystem::path find(const std::filesystem::path& folder, std::string_view relative);

    /// Returns true if a path inside `folder` leads out of it, by ".." or by a symbolic link.
    static bool leaves(const std::filesystem::path& folder, const std::filesystem::path& path);

    /// Returns the folder inside `folder` whose name starts with `number`, as in "000123". If
    /// several names match, each further one is appended to the path if it exists there. Empty if
    /// there is none, and for the number 0.
    std::filesystem::path numbered(const std::filesystem::path& folder, int number);

private:
    /// File names by their lower-case form.
    using Names = std::multimap<std::string, std::string>;

    const Names& names(const std::filesystem::path& folder);
    std::string spelling(const std::filesystem::path& folder, const std::string& name);

    std::unordered_map<std::string, Names> folders_;
};

} // namespace velmora
