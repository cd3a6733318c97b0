#include "import/OrganPackages.h"

#include "base/FormatError.h"
#include "base/Text.h"

#include <spdlog/fmt/fmt.h>

namespace velmora {

namespace {

constexpr OrganColumn kOrganNumber{"Identification_UniqueOrganID", "b"};
constexpr OrganColumn kPackageNumber{"InstallationPackageID", "a"};
constexpr OrganColumn kPackageName{"Name", "b"};
constexpr OrganColumn kSample{"SampleID", "a"};
constexpr OrganColumn kSamplePackage{"InstallationPackageID", "b"};
constexpr OrganColumn kFilename{"SampleFilename", "c"};
constexpr OrganColumn kHarmonic{"Pitch_RankBasePitch64ftHarmonicNum", "e"};
constexpr OrganColumn kNote{"Pitch_NormalMIDINoteNumber", "f"};
constexpr OrganColumn kHertz{"Pitch_ExactSamplePitch", "g"};
constexpr OrganColumn kLicence{"LicenceSerialNumRequiredForSampleFile", "h"};

constexpr double kLowestHertz = 4.0; ///< Lower than any pipe sounds.

} // namespace

OrganPackages::OrganPackages(const std::filesystem::path& definition, const OrganTables& tables)
    : tables_(tables),
      root_(folders_.find(std::filesystem::absolute(definition).parent_path().parent_path(),
                          "OrganInstallationPackages"))
{
    std::error_code error;
    if (!std::filesystem::is_directory(root_, error))
        throw FormatError("cannot be loaded without its samples: there is no folder " +
                          root_.string());
    for (const OrganRow& general : tables.rows("_General")) {
        const auto folder = folders_.numbered(root_, general.id(kOrganNumber));
        if (!folder.empty())
            organFolder_ = add(folder);
    }
    if (organFolder_ == ".")
        add(root_);
    for (const OrganRow& row : tables.rows("Sample"))
        samples_.insert_or_assign(row.id(kSample), row);
}

std::optional<OrganPackages::Sample> OrganPackages::find(int id)
{
    const auto found = samples_.find(id);
    if (found == samples_.end())
        return std::nullopt;
    const OrganRow& row = found->second;
    // See docs/decisions.md, 55.
    if (row.id(kLicence) != 0)
        throw FormatError("cannot be loaded: its samples are encrypted and need a licence; open "
                          "an organ without encryption");
    const std::optional<std::string>& folder = folderOf(row.id(kSamplePackage));
    // Some organs keep everything in the folder of one package.
    const std::string name =
        fmt::format("{}/{}", folder.value_or(organFolder_), row.text(kFilename));
    if (!folder && !tree_->contains(name))
        return std::nullopt;
    const auto [index, isNew] = indices_.try_emplace(lowerCase(name), files_.size());
    if (isNew)
        files_.push_back(name);
    Sample sample{index->second, row.number(kHertz), row.integer(kNote)};
    if (sample.hertz && !(*sample.hertz >= kLowestHertz))
        sample.hertz.reset();
    if (const auto harmonic = row.number(kHarmonic); harmonic && *harmonic > 0.0)
        sample.harmonicNumber = *harmonic;
    sample.isTremulant = lowerCase(name).find("trem") != std::string::npos;
    return sample;
}

const std::optional<std::string>& OrganPackages::folderOf(int package)
{
    const auto [found, isNew] = packages_.try_emplace(package);
    if (isNew) {
        const std::filesystem::path folder = folders_.numbered(root_, package);
        if (!folder.empty())
            found->second = add(folder);
        else if (package == 0)
            found->second = organFolder_;
    }
    return found->second;
}

/// Makes the files of a package part of the tree and returns how their names begin.
std::string OrganPackages::add(const std::filesystem::path& folder)
{
    std::string name = folder.lexically_relative(root_).string();
    tree_->add(name, folder);
    return name;
}

std::string OrganPackages::nameOf(int package) const
{
    for (const OrganRow& row : tables_.rows("RequiredInstallationPackage")) {
        if (row.id(kPackageNumber) == package)
            return row.text(kPackageName);
    }
    return {};
}

std::vector<std::pair<std::string, std::string>> OrganPackages::missing() const
{
    std::vector<std::pair<std::string, std::string>> result;
    for (const auto& [package, folder] : packages_) {
        if (folder)
            continue;
        const std::string name = nameOf(package);
        result.emplace_back(
            name.empty() ? fmt::format("package {:06}", package)
                         : fmt::format("package {:06} ({})", package, name),
            fmt::format("is missing: there is no folder with this number in {}", root_.string()));
    }
    return result;
}

} // namespace velmora
