#pragma once

#include <string>

namespace velmora {

/// Returns the version with the commit from which the program was built, as far as it is known, as
/// in "0.1.0 (4e2065c)".
std::string version();

} // namespace velmora
