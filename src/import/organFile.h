#pragma once

#include "import/Import.h"

#include <filesystem>

namespace velmora {

/// Imports an organ definition in text form with the samples beside it, as its maker meant it.
/// Throws FormatError and Cancelled.
void readOrganFile(const std::filesystem::path& path, Import& import);

/// Imports an organ from a package: a zip archive with its definition and its samples. If there are
/// several definitions, the import's options choose one. Throws FormatError and Cancelled.
void readOrganPackage(const std::filesystem::path& path, Import& import);

} // namespace velmora
