#pragma once

#include "import/PipeOrgan.h"

#include <memory>
#include <string_view>

namespace velmora {

/// Returns the organ of a definition in text form with its console. `tree` holds its sample files
/// and becomes that of the organ. Throws FormatError if the file holds no organ that can be played.
PipeOrgan readSectionedOrgan(std::string_view bytes, std::shared_ptr<const FileTree> tree);

} // namespace velmora
