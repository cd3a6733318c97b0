#pragma once

#include "import/Import.h"

#include <filesystem>

namespace velmora {

/// Imports a Hauptwerk XML organ definition with its samples, which lie in a folder
/// "OrganInstallationPackages" beside the folder of the definition: a stop for each rank that has
/// pipes. Throws FormatError and Cancelled.
void readXML(const std::filesystem::path& path, Import& import);

} // namespace velmora
