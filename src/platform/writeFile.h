#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velmora {

/// Returns why a file of that name must not be written: its folder is missing, or the name belongs
/// to a folder, a pipe, a device or a loop of symbolic links, which a file written beside it would
/// replace. Empty if nothing speaks against it.
std::string reasonNotToReplace(const std::filesystem::path& path);

/// Writes a file atomically and durably. If that fails, an existing file is left unchanged, and
/// std::runtime_error is thrown with a sentence that names the file, its folder and the reason.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace velmora
