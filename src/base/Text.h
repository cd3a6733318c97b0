#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmora {

/// Returns the text if it is valid UTF-8, and otherwise converts it from Latin-1 to UTF-8.
std::string toUtf8(std::string_view text);

/// Returns the text with A to Z in lower case, independent of the locale.
std::string lowerCase(std::string text);

/// Returns a count with its noun, as in "1 note" or "3 notes".
std::string counted(std::size_t count, std::string_view noun);

} // namespace velmora
