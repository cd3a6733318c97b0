#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velmora {

/// Returns a path as UTF-8 text that `unescapePath` turns back into the same path. A percent sign
/// is written as %25, and if the path is not UTF-8, so are its bytes above 127.
std::string escapePath(const std::filesystem::path& path);

/// Returns the path that `escapePath` has written. A percent sign that no two hexadecimal digits
/// follow stands for itself.
std::filesystem::path unescapePath(std::string_view text);

} // namespace velmora
