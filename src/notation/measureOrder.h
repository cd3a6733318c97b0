#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora {

/// The signs of a measure that say what is played after it.
struct MeasureSigns {
    bool beginsRepeat = false;
    int times = 1; ///< How often what a repeat sign ends here is played; 1 without the sign.
    std::uint32_t passes = 0; ///< Bit n is set if an ending is played at pass n; 0 for every pass.
    bool isSegno = false, isCoda = false, isFine = false;
    bool leadsToStart = false, leadsToSegno = false, leadsToCoda = false;
};

/// A measure as it is played: its index, and the pass through its repetition, counted from 1.
struct PlayedMeasure {
    std::size_t index;
    int pass;
};

/// Returns the measures in the order in which they are played: repetitions with their endings, and
/// one return to the beginning or to a segno, on which nothing is repeated.
std::vector<PlayedMeasure> measureOrder(std::span<const MeasureSigns> measures);

} // namespace velmora
