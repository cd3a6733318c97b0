#pragma once

#include "import/FileTree.h"

#include <filesystem>
#include <memory>

namespace velmora {

/// Opens a folder as the files of an instrument. Its functions refuse names that lead out of the
/// folder.
std::shared_ptr<const FileTree> openFolder(const std::filesystem::path& folder);

} // namespace velmora
