#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velmora {

/// Finds the files that organ definitions name, which were made where letter case and the kind of
/// slash do not matter. Reads each folder once.
class SampleFiles {
public:
    /// The path of `relative` inside a folder, its components split at '/' and '\' and each spelt
    /// as it is on disk where only the case of ASCII letters differs, or the encoding. Where there
    /// is no such file, the path where it would be.
    std::filesystem::path find(const std::filesystem::path& folder, std::string_view relative);

    /// The folder in `folder` whose name begins with that number, which is not 0, as in "000123";
    /// of several, in the order of their names, one in the other where they are. Empty where there
    /// is none.
    std::filesystem::path numbered(const std::filesystem::path& folder, int number);

private:
    /// Names by their lower-case form.
    using Names = std::multimap<std::string, std::string>;

    const Names& names(const std::filesystem::path& folder);
    std::string spelling(const std::filesystem::path& folder, const std::string& name);

    std::unordered_map<std::string, Names> folders_;
};

} // namespace velmora
