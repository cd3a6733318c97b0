#include "import/PackageTree.h"

#include "base/FormatError.h"
#include "import/FolderTree.h"

namespace velmora {

void PackageTree::add(const std::string& name, const std::filesystem::path& folder)
{
    packages_.try_emplace(name, openFolder(folder));
}

std::vector<std::byte> PackageTree::read(const std::string& name) const
{
    const Place place = placeOf(name);
    if (place.package == nullptr)
        throw FormatError("belongs to a package that is missing");
    return place.package->read(place.name);
}

bool PackageTree::contains(const std::string& name) const
{
    const Place place = placeOf(name);
    return place.package != nullptr && place.package->contains(place.name);
}

std::uint64_t PackageTree::size(const std::string& name) const
{
    const Place place = placeOf(name);
    return place.package == nullptr ? 0 : place.package->size(place.name);
}

std::string PackageTree::displayName(const std::string& name) const
{
    const Place place = placeOf(name);
    return place.package == nullptr ? name : place.package->displayName(place.name);
}

PackageTree::Place PackageTree::placeOf(const std::string& name) const
{
    // The folder of one package may be inside that of another one, whose name is then shorter.
    Place result;
    std::size_t longest = 0;
    for (const auto& [folder, package] : packages_) {
        if (folder.size() < longest || !name.starts_with(folder) || name.size() <= folder.size() ||
            name[folder.size()] != '/')
            continue;
        longest = folder.size();
        result = {package.get(), name.substr(folder.size() + 1)};
    }
    return result;
}

} // namespace velmora
