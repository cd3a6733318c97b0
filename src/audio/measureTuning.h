#pragma once

#include "audio/MusicDevice.h"

#include <functional>
#include <optional>

namespace velmora {

class SoundFontBank;

/// Plays each key of a program without a sound output and measures how far it is from equal
/// temperament. Returns the corrections that bring the keys there. They are all 0 if the program
/// beats, as strings and choirs do, or has no pitch. Takes a few tenths of a second; may run on any
/// thread. Empty if `isCancelled`, which is asked before each key, returns true.
std::optional<KeyCorrections> measureTuning(const SoundFontBank& bank, int bankNumber, int program,
                                            const std::function<bool()>& isCancelled);

} // namespace velmora
