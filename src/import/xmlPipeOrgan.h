#pragma once

#include "import/PipeOrgan.h"

#include <filesystem>

namespace velmora {

/// Reads an XML organ definition as its maker meant it: divisions with stops and couplers, and
/// ranks that stops may share. Throws FormatError if it is not one or if its samples are encrypted.
PipeOrgan readXmlPipeOrgan(const std::filesystem::path& path);

} // namespace velmora
