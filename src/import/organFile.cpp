#include "import/organFile.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "import/ArchiveTree.h"
#include "import/FolderTree.h"
#include "import/OrganSections.h"
#include "import/sectionedOrgan.h"

#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <map>

namespace velmora {

namespace {

/// The list of what a package holds.
constexpr const char* kPackageIndex = "organindex.ini";

/// A definition in a package.
struct Definition {
    std::string file;
    std::string title;
};

std::string textOf(const FileTree& tree, const std::string& name)
{
    const std::vector<std::byte> bytes = tree.read(name);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// An archive that holds organs.
class OrganPackage {
public:
    explicit OrganPackage(const std::filesystem::path& path)
        : archive_(std::make_shared<ArchiveTree>(openFile(path), path.filename().string()))
    {
        if (archive_->contains(kPackageIndex))
            index_ = OrganSections::read(textOf(*archive_, kPackageIndex));
    }

    const std::shared_ptr<const ArchiveTree>& archive() const { return archive_; }

    std::string title() const
    {
        const OrganSection* general = index_.find("general");
        return general == nullptr ? "" : general->text("title");
    }

    std::vector<Definition> definitions() const
    {
        std::vector<Definition> result;
        for (const int number : index_.numbers("organ")) {
            const OrganSection& organ = *index_.find(fmt::format("organ{}", number));
            const std::string file = organ.text("filename");
            const std::string title = organ.text("churchname");
            if (archive_->contains(file))
                result.push_back({file, title.empty() ? file : title});
        }
        if (result.empty()) {
            for (const std::string& name : archive_->names()) {
                if (lowerCase(name).ends_with(".organ"))
                    result.push_back({name, name});
            }
        }
        return result;
    }

    /// Returns the titles of the packages that this one needs beside it.
    std::vector<std::string> required() const
    {
        std::vector<std::string> result;
        for (const char* section : {"dependency", "package"}) {
            for (const int number : index_.numbers(section))
                result.push_back(index_.find(fmt::format("{}{}", section, number))->text("title"));
        }
        std::erase(result, "");
        return result;
    }

private:
    std::shared_ptr<const ArchiveTree> archive_;
    OrganSections index_;
};

/// The files of a package and of those that it needs, as a definition in one of its folders names
/// them.
class PackageFiles : public FileTree {
public:
    PackageFiles(std::shared_ptr<const FileTree> package, const std::string& definition)
        : trees_{std::move(package)}
    {
        const std::size_t slash = definition.find_last_of("/\\");
        if (slash != std::string::npos)
            folder_ = definition.substr(0, slash + 1);
    }

    void add(std::shared_ptr<const FileTree> package) { trees_.push_back(std::move(package)); }

    std::vector<std::byte> read(const std::string& name) const override
    {
        return treeOf(name).read(folder_ + name);
    }

    bool contains(const std::string& name) const override
    {
        return treeOf(name).contains(folder_ + name);
    }

    std::uint64_t size(const std::string& name) const override
    {
        return treeOf(name).size(folder_ + name);
    }

    std::string displayName(const std::string& name) const override
    {
        return treeOf(name).displayName(folder_ + name);
    }

private:
    /// Returns the first package that has a file, or the organ's own one if none has it.
    const FileTree& treeOf(const std::string& name) const
    {
        const auto found = std::ranges::find_if(
            trees_, [&](const auto& tree) { return tree->contains(folder_ + name); });
        return found == trees_.end() ? *trees_.front() : **found;
    }

    std::vector<std::shared_ptr<const FileTree>> trees_;
    std::string folder_; ///< Ends with a slash, or is empty.
};

/// Returns the packages in a folder by their titles. What is not a package is passed over.
std::map<std::string, std::shared_ptr<const FileTree>>
packagesIn(const std::filesystem::path& folder)
{
    std::map<std::string, std::shared_ptr<const FileTree>> result;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        if (lowerCase(entry.path().extension().string()) != ".orgue")
            continue;
        try {
            const OrganPackage package(entry.path());
            result.try_emplace(package.title(), package.archive());
        } catch (const std::exception& failure) {
            logger("import").info("{}: {}", entry.path().string(), failure.what());
        }
    }
    return result;
}

void load(PipeOrgan organ, const std::string& file, Import& import)
{
    organ.console.identity = organ.name + '/' + file;
    import.name = organ.name;
    loadPipeOrgan(std::move(organ), import);
}

} // namespace

void readOrganFile(const std::filesystem::path& path, Import& import)
{
    const auto folder = std::filesystem::absolute(path).parent_path();
    load(readSectionedOrgan(readTextFile(path), openFolder(folder)), path.filename().string(),
         import);
}

void readOrganPackage(const std::filesystem::path& path, Import& import)
{
    const OrganPackage package(path);
    const std::vector<Definition> definitions = package.definitions();
    if (definitions.empty())
        throw FormatError("holds no organ definition (a file with the extension .organ)");
    if (definitions.size() > 1) {
        for (const Definition& definition : definitions)
            import.choices.push_back(definition.title);
    }
    const Definition& chosen = definitions[std::min(import.options.choice, definitions.size() - 1)];

    const auto files = std::make_shared<PackageFiles>(package.archive(), chosen.file);
    PipeOrgan organ = readSectionedOrgan(textOf(*package.archive(), chosen.file), files);
    if (const auto required = package.required(); !required.empty()) {
        const auto others = packagesIn(std::filesystem::absolute(path).parent_path());
        for (const std::string& title : required) {
            if (const auto other = others.find(title); other != others.end())
                files->add(other->second);
            else
                organ.skipped.emplace_back(title, "this package is not in the folder of the organ");
        }
    }
    load(std::move(organ), chosen.file, import);
}

} // namespace velmora
