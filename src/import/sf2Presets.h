#pragma once

#include <filesystem>

namespace velmora {

struct Import;

/// Imports the presets of a SoundFont 2 bank as the programs of one instrument, with everything
/// that the bank says about them. Throws FormatError if the file is not a bank or has no presets.
void readSoundFontPresets(const std::filesystem::path& path, Import& import);

} // namespace velmora
