#pragma once

#include <cstdint>

namespace velmora {

/// Whether the pipes of a rank or of a stop are in memory, or why not.
enum class LoadState : std::uint8_t {
    Loaded,
    Loading,  ///< They will come.
    Stopped,  ///< The user ended the loading before.
    Unwanted, ///< The user chose to load fewer stops.
    TooLarge, ///< There was not enough memory for them.
    Unusable, ///< None of their files can be used.
};

} // namespace velmora
