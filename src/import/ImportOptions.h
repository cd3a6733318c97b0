#pragma once

#include "base/Reading.h"

#include <cstddef>
#include <cstdint>

namespace velmora {

/// Which stops of an organ are loaded.
enum class StopsToLoad : std::uint8_t {
    All,
    Drawn,   ///< Those that are drawn when the organ is opened.
    Fitting, ///< As many as fit into the free memory: the drawn ones, then as the console has them.
};

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
    StopsToLoad stops = StopsToLoad::All;

    bool operator==(const ImportOptions&) const = default;
};

} // namespace velmora
