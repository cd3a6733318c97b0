#include "import/SampleFiles.h"

#include "base/Numbers.h"
#include "base/Text.h"

#include <algorithm>

namespace velmora {

std::filesystem::path SampleFiles::find(const std::filesystem::path& folder,
                                        std::string_view relative)
{
    std::filesystem::path result = folder;
    while (!relative.empty()) {
        // See docs/decisions.md, 62.
        const std::size_t length = std::min(relative.find_first_of("/\\"), relative.size());
        if (length > 0)
            result /= spelling(result, std::string(relative.substr(0, length)));
        relative.remove_prefix(std::min(length + 1, relative.size()));
    }
    return result;
}

bool SampleFiles::leaves(const std::filesystem::path& folder, const std::filesystem::path& path)
{
    std::error_code error;
    const auto inside = std::filesystem::weakly_canonical(folder, error);
    const auto target = std::filesystem::weakly_canonical(path, error);
    return error ||
           std::mismatch(inside.begin(), inside.end(), target.begin(), target.end()).first !=
               inside.end();
}

std::filesystem::path SampleFiles::numbered(const std::filesystem::path& folder, int number)
{
    std::filesystem::path result;
    if (number == 0)
        return result;
    for (const auto& [key, name] : names(folder)) {
        std::error_code error;
        // See docs/decisions.md, 61.
        const auto candidate = (result.empty() ? folder : result) / name;
        if (leadingInteger(name) == number && std::filesystem::is_directory(candidate, error))
            result = candidate;
    }
    return result;
}

const SampleFiles::Names& SampleFiles::names(const std::filesystem::path& folder)
{
    const auto [found, isNew] = folders_.try_emplace(folder.native());
    if (isNew) {
        std::error_code error;
        for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            const std::string name = entry->path().filename().string();
            found->second.emplace(lowerCase(name), name);
        }
    }
    return found->second;
}

std::string SampleFiles::spelling(const std::filesystem::path& folder, const std::string& name)
{
    if (name == "." || name == "..")
        return name;
    for (const std::string& wanted : {name, toUtf8(name)}) {
        const auto [begin, end] = names(folder).equal_range(lowerCase(wanted));
        const auto exact =
            std::find_if(begin, end, [&](const auto& entry) { return entry.second == wanted; });
        if (begin != end)
            return exact == end ? begin->second : wanted;
    }
    return name;
}

} // namespace velmora
