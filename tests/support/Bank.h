#pragma once

#include <filesystem>

namespace velmora {

/// The General MIDI bank that the set-up of the tests installs.
inline const std::filesystem::path kBank = "/usr/share/sounds/sf2/TimGM6mb.sf2";

/// A program of it, an ocarina: steady, without vibrato, and at once there.
constexpr int kSteadyProgram = 79;

} // namespace velmora
