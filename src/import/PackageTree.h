#pragma once

#include "import/FileTree.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace velmora {

/// The files of several packages. Their names begin with the name of the package's folder and a
/// slash, and never lead out of that folder.
class PackageTree : public FileTree {
public:
    /// Adds a folder, before any thread reads from the tree. `name` may have several components.
    void add(const std::string& name, const std::filesystem::path& folder);

    std::vector<std::byte> read(const std::string& name) const override;
    bool contains(const std::string& name) const override;
    std::uint64_t size(const std::string& name) const override;
    std::string displayName(const std::string& name) const override;

private:
    /// A file of a package.
    struct Place {
        const FileTree* package = nullptr; ///< Null if there is no such package.
        std::string name;                  ///< In the package.
    };

    Place placeOf(const std::string& name) const;

    std::map<std::string, std::shared_ptr<const FileTree>> packages_;
};

} // namespace velmora
