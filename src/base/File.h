#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace velmora {

/// Reads a whole file. Throws FormatError with the system's reason if it cannot be read or is not a
/// regular file, and MemoryShortage.
std::vector<std::byte> readFile(const std::filesystem::path& path);

/// Reads a whole file as text. Throws as `readFile` does.
std::string readTextFile(const std::filesystem::path& path);

} // namespace velmora
