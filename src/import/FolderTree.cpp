#include "import/FolderTree.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "import/SampleFiles.h"

#include <mutex>

namespace velmora {

namespace {

class FolderTree : public FileTree {
public:
    explicit FolderTree(std::filesystem::path folder) : folder_(std::move(folder)) {}

    std::vector<std::byte> read(const std::string& name) const override
    {
        const auto path = pathOf(name);
        if (SampleFiles::leaves(folder_, path))
            throw FormatError("lies outside the folder of the instrument");
        std::error_code error;
        if (!std::filesystem::exists(path, error))
            throw FormatError("is missing");
        return readFile(path);
    }

    bool contains(const std::string& name) const override
    {
        std::error_code error;
        const auto path = pathOf(name);
        return std::filesystem::is_regular_file(path, error) && !SampleFiles::leaves(folder_, path);
    }

    std::uint64_t size(const std::string& name) const override
    {
        std::error_code error;
        const std::uint64_t size = std::filesystem::file_size(pathOf(name), error);
        return error ? 0 : size;
    }

    std::string displayName(const std::string& name) const override
    {
        return pathOf(name).string();
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
