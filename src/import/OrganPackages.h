#pragma once

#include "import/OrganTables.h"
#include "import/PackageTree.h"
#include "import/SampleFiles.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velmora {

/// The sample files that an XML organ definition names. They are in folders that start with the
/// number of their package, all of them in a folder "OrganInstallationPackages" beside the folder
/// of the definition.
class OrganPackages {
public:
    /// What the definition says about a sample.
    struct Sample {
        std::size_t file = 0;        ///< Index in `files`.
        std::optional<double> hertz; ///< How it sounds as recorded.
        std::optional<int> note;     ///< The key whose pipe it is a recording of.
        double harmonicNumber = 8.0; ///< Of that pipe; 8 for an 8′ one.
        bool isTremulant = false;    ///< According to its name.
    };

    /// `definition` is the file that `tables` were read from. Throws FormatError if there is no
    /// folder with packages.
    OrganPackages(const std::filesystem::path& definition, const OrganTables& tables);

    /// Returns a sample by its number; nothing if it is not in the definition or if its package is
    /// missing. Throws FormatError if it is encrypted.
    std::optional<Sample> find(int id);

    /// The tree in which the names of the files are found.
    std::shared_ptr<const FileTree> tree() const { return tree_; }

    /// The files of the samples that were found.
    const std::vector<std::string>& files() const { return files_; }

    /// The missing packages that samples were looked up in, and what the user can do.
    std::vector<std::pair<std::string, std::string>> missing() const;

private:
    /// The folder of a package inside the tree; nothing if it is missing.
    const std::optional<std::string>& folderOf(int package);
    std::string add(const std::filesystem::path& folder);
    std::string nameOf(int package) const;

    const OrganTables& tables_;
    SampleFiles folders_; ///< Before `root_`, which it finds.
    std::filesystem::path root_;
    std::shared_ptr<PackageTree> tree_ = std::make_shared<PackageTree>();
    /// The folder of the package with the organ's own number, if there is one.
    std::string organFolder_ = ".";
    std::map<int, std::optional<std::string>> packages_;
    std::unordered_map<int, OrganRow> samples_;
    std::vector<std::string> files_;
    std::unordered_map<std::string, std::size_t> indices_; ///< Of the files, by their names.
};

} // namespace velmora
