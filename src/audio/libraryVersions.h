#pragma once

#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// Returns the names and versions of the libraries that make the sound.
std::vector<std::pair<std::string, std::string>> soundLibraryVersions();

} // namespace velmora
