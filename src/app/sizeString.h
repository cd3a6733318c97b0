#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// A count of bytes for display, as in "1.50MB"; empty for none.
std::string sizeString(std::uint64_t bytes);

} // namespace velmora
