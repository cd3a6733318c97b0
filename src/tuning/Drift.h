#pragma once

#include <cstdint>

namespace velmora {

/// What becomes of the pitch when pure intervals lead it away from where it began.
enum class Drift : std::uint8_t {
    TiedToA, ///< A weak pull always leads back.
    Free,    ///< The pitch stays where the music has led it.
    Returns, ///< As free, but silence leads it back within a few seconds.
};

} // namespace velmora
