#include "import/organXml.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "import/Organ.h"
#include "import/OrganDefinition.h"
#include "import/SampleFiles.h"

#include <unordered_map>

namespace velmora {

namespace {

/// Approximate number of progress updates.
constexpr long kUpdatesOfXml = 200;

/// Locates the sample files of an organ.
class Packages {
public:
    Packages(const std::filesystem::path& definition, int organ)
        : folder_(files_.find(std::filesystem::absolute(definition).parent_path().parent_path(),
                              "OrganInstallationPackages")),
          organFolder_(files_.numbered(folder_, organ))
    {
    }

    /// Returns a unique name for a file. It includes the package unless the organ has its own
    /// folder.
    std::string nameOf(const OrganDefinition::SampleFile& file)
    {
        if (!organFolder_.empty() || packageFolder(file.package).empty())
            return file.name;
        return std::to_string(file.package) + '/' + file.name;
    }

    std::filesystem::path pathOf(const OrganDefinition::SampleFile& file)
    {
        return files_.find(folderOf(file), file.name);
    }

    /// Returns true if the name of a file leads out of the folder that it belongs to.
    bool isOutside(const OrganDefinition::SampleFile& file)
    {
        return SampleFiles::leaves(folderOf(file), pathOf(file));
    }

private:
    const std::filesystem::path& folderOf(const OrganDefinition::SampleFile& file)
    {
        if (!organFolder_.empty())
            return organFolder_;
        const auto& package = packageFolder(file.package);
        return package.empty() ? folder_ : package;
    }

    const std::filesystem::path& packageFolder(int package)
    {
        const auto [found, isNew] = packageFolders_.try_emplace(package);
        if (isNew)
            found->second = files_.numbered(folder_, package);
        return found->second;
    }

    SampleFiles files_;
    std::filesystem::path folder_;
    std::filesystem::path organFolder_; ///< Empty if there is none.
    std::unordered_map<int, std::filesystem::path> packageFolders_;
};

/// Turns each rank of a definition into a stop and finds the files of its pipes.
class XmlAssembly {
public:
    XmlAssembly(const std::filesystem::path& path, const OrganDefinition& definition)
        : definition_(definition), packages_(path, definition.number)
    {
        organ_.updates = kUpdatesOfXml;
        organ_.doneText = "Done " + std::to_string(definition.pipes.size());
    }

    Organ assemble()
    {
        for (const OrganDefinition::Pipe& pipe : definition_.pipes)
            add(pipe);
        return std::move(organ_);
    }

private:
    void add(const OrganDefinition::Pipe& pipe)
    {
        const std::size_t stop = stopOf(pipe.rank);
        Organ::Pipe& added = organ_.pipes.emplace_back();
        added.stop = added.rank = stop;
        const auto file = definition_.files.find(pipe.id);
        if (file == definition_.files.end()) {
            skip(pipe, "has no sample file");
            return;
        }
        added.text = file->second.name;
        if (pipe.note < 0 || pipe.note >= static_cast<int>(kKeys)) {
            skip(pipe,
                 "is for MIDI note " + std::to_string(pipe.note) + ", which is outside 0 to 127");
            return;
        }
        // See docs/decisions.md, 55.
        if (file->second.licensed)
            throw FormatError("cannot be loaded: its samples are encrypted and need a licence; "
                              "open an organ without encryption");
        if (packages_.isOutside(file->second)) {
            skip(pipe,
                 "names a file outside the folder of its package: \"" + file->second.name + '"');
            return;
        }
        added.key = pipe.note;
        added.file = fileIndex(file->second);
    }

    std::size_t stopOf(int rank)
    {
        const auto [stop, isNew] = stops_.try_emplace(rank, stops_.size());
        if (isNew) {
            const auto name = definition_.rankNames.find(rank);
            organ_.stops.push_back(name == definition_.rankNames.end() ? "" : name->second);
        }
        return stop->second;
    }

    std::size_t fileIndex(const OrganDefinition::SampleFile& file)
    {
        const std::string name = packages_.nameOf(file);
        const auto [index, isNew] = indices_.try_emplace(name, organ_.files.size());
        if (isNew)
            organ_.files.push_back({name, packages_.pathOf(file)});
        return index->second;
    }

    void skip(const OrganDefinition::Pipe& pipe, const std::string& why)
    {
        organ_.skipped.emplace_back("pipe " + std::to_string(pipe.id), why);
    }

    const OrganDefinition& definition_;
    Packages packages_;
    Organ organ_;
    std::unordered_map<int, std::size_t> stops_; ///< Index of each stop by its rank.
    std::unordered_map<std::string, std::size_t>
        indices_; ///< Index of each file by the name of its sound.
};

} // namespace

void readXML(const std::filesystem::path& path, Import& import)
{
    const OrganDefinition definition = readOrganDefinition(readTextFile(path));
    import.name = definition.name;
    loadOrgan(XmlAssembly(path, definition).assemble(), import);
}

} // namespace velmora
