#pragma once

#include <string>

namespace velmora {

/// The bank of the drum kits, as SoundFonts number it.
constexpr int kDrumKits = 128;

/// One of the sounds of a bank. Where both numbers are known, musicians name them.
struct Program {
    int bank = 0;
    int number = 0;   ///< 0…127.
    std::string name; ///< Empty if it has none, as the programs of the General MIDI player.
    bool isPercussion = false; ///< Each key is a sound of its own, which no temperament tunes.

    bool operator==(const Program&) const = default;
};

} // namespace velmora
