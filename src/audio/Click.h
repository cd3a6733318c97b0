#pragma once

#include <cstdint>

namespace velmora {

/// What a click of the metronome marks.
enum class Click : std::uint8_t {
    Bar,     ///< The first beat of a bar.
    Beat,    ///< Any other beat.
    Division ///< A part of a beat.
};

} // namespace velmora
