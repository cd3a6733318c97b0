#pragma once

#include "sound/LoadState.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What an import loaded and what it skipped.
struct ImportReport {
    std::size_t ranks = 0;   ///< Stops with at least one sounding key.
    std::size_t pipes = 0;   ///< Keys with a sound of their own, not extended from another key.
    std::size_t samples = 0; ///< Distinct sounds.

    /// The ranks of an organ that were left out though nothing is wrong with them, and why.
    std::vector<std::pair<std::string, LoadState>> notLoaded;

    /// Each skipped file or sample, and why.
    std::vector<std::pair<std::string, std::string>> skipped;
};

} // namespace velmora
