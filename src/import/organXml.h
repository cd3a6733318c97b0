#pragma once

#include "import/Import.h"

#include <filesystem>

namespace velmora {

/// Imports a Hauptwerk XML organ definition with its samples. Each rank that has pipes becomes a
/// stop. The samples are in a folder "OrganInstallationPackages" beside the folder of the
/// definition. Throws FormatError and Cancelled.
void readXML(const std::filesystem::path& path, Import& import);

} // namespace velmora
