#pragma once

#include <filesystem>
#include <vector>

namespace velmora {

/// The SoundFonts to try for the General MIDI synthesizer; the user's choice comes first.
std::vector<std::filesystem::path> generalMidiBanks();

} // namespace velmora
