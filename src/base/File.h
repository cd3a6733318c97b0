#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace velmora {

/// Every byte of the file. Throws FormatError with the system's reason when it cannot be read.
std::vector<std::byte> readFile(const std::filesystem::path& path);

/// The same as text, for formats that are.
std::string readTextFile(const std::filesystem::path& path);

} // namespace velmora
