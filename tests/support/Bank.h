#pragma once

#include <filesystem>

namespace velmora {

/// The General MIDI bank that all tests use (package timgm6mb-soundfont).
inline const std::filesystem::path kBank = "/usr/share/sounds/sf2/TimGM6mb.sf2";

/// A program whose sound is steady, has no vibrato and starts at once: the ocarina.
constexpr int kSteadyProgram = 79;

} // namespace velmora
