#pragma once

#include <filesystem>
#include <string_view>

namespace velmora {

/// Writes a file atomically and durably. If that fails, an existing file is left unchanged, and
/// std::runtime_error is thrown with a sentence that names the file, its folder and the reason.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace velmora
