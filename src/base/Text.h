#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The text itself where it is valid UTF-8; else the text as UTF-8 with each byte read as Latin-1.
std::string toUtf8(std::string_view text);

/// The text with the letters A to Z in lower case, whatever the user's locale is.
std::string lowerCase(std::string text);

} // namespace velmora
