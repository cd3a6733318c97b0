#pragma once

#include <cstdint>

namespace velmora {

/// How files and what is played are understood. Where a rule of the plain reading makes the music
/// wrong, the musical reading does what is meant.
enum class Reading : std::uint8_t {
    Plain,   ///< To the letter. Of instruments, one sample for each key, as the file lists them.
    Musical, ///< What the maker meant. Of instruments, loops, releases, layers, presets, a console.
};

} // namespace velmora
