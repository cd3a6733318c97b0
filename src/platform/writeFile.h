#pragma once

#include <filesystem>
#include <string_view>

namespace velmora {

/// Puts a file with these bytes in its place, all of it on the disk, or leaves what was there as it
/// was. Throws std::runtime_error with a sentence that names the file, its folder and the reason.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace velmora
