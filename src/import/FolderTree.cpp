#include "import/FolderTree.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "import/SampleFiles.h"

#include <mutex>

namespace velmora {

namespace {

/// True if a component of the name is "..".
bool leadsUpwards(std::string_view name)
{
    while (true) {
        const std::size_t end = name.find_first_of("/\\");
        if (name.substr(0, end) == "..")
            return true;
        if (end == std::string_view::npos)
            return false;
        name.remove_prefix(end + 1);
    }
}

class FolderTree : public FileTree {
public:
    explicit FolderTree(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::vector<std::byte> read(const std::string& name) const override
    {
        if (leadsUpwards(name))
            throw FormatError("lies outside the folder of the instrument");
        return readFile(pathOf(name));
    }

    bool contains(const std::string& name) const override
    {
        std::error_code error;
        return !leadsUpwards(name) && std::filesystem::is_regular_file(pathOf(name), error);
    }

    std::string displayName(const std::string& name) const override
    {
        return leadsUpwards(name) ? name : pathOf(name).string();
    }

private:
    std::filesystem::path pathOf(const std::string& name) const
    {
        const std::lock_guard lock(mutex_);
        return files_.find(folder_, name);
    }

    const std::filesystem::path folder_;
    mutable std::mutex mutex_;
    mutable SampleFiles files_; ///< Guarded by `mutex_`.
};

} // namespace

std::shared_ptr<const FileTree> openFolder(const std::filesystem::path& folder)
{
    return std::make_shared<FolderTree>(folder);
}

} // namespace velmora
