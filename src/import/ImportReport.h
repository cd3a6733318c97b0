#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What an import brought in and what it had to leave out.
struct ImportReport {
    std::size_t ranks = 0;   ///< stops that sound
    std::size_t pipes = 0;   ///< keys that were given a sound by the file, without extended ones
    std::size_t samples = 0; ///< distinct sounds

    /// Each file or sample left out, and why.
    std::vector<std::pair<std::string, std::string>> skipped;
};

} // namespace velmora
