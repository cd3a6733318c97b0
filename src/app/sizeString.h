#pragma once

#include <cstdint>
#include <string>

namespace velmora {

/// Formats a number of bytes for display, as in "1.50MB". Returns an empty text for 0.
std::string sizeString(std::uint64_t bytes);

} // namespace velmora
