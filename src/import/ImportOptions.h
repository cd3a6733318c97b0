#pragma once

#include "base/Reading.h"

#include <cstddef>

namespace velmora {

/// What a user can choose about an import.
struct ImportOptions {
    Reading reading = Reading::Musical;

    /// Lays out the instruments of a SoundFont as stops instead of playing its presets. The plain
    /// reading always does.
    bool asStops = false;

    /// Which instrument of a file that holds several: its position in
    /// `InstrumentDocument::choices`.
    std::size_t choice = 0;

    // To take less memory:
    bool to16Bit = false; ///< Rounds all samples to 16 bits.
    bool toMono = false;  ///< Mixes the channels of stereo samples.

    bool operator==(const ImportOptions&) const = default;
};

} // namespace velmora
