#pragma once

#include "import/PipeOrgan.h"

#include <cstddef>
#include <vector>

namespace velmora {

/// The recordings of an organ's pipes, each only once, in the order in which ranks need them.
struct VoiceList {
    /// The organ must outlive this.
    VoiceList(const PipeOrgan& organ, const std::vector<std::size_t>& order);

    std::vector<const PipeOrgan::Pipe*> pipes;     ///< A pipe with each voice.
    std::vector<std::vector<std::size_t>> ofPipes; ///< The voice of each pipe of each rank.
};

/// Returns the ranks of the stops that are drawn, then those of the others, then the rest.
std::vector<std::size_t> orderOfRanks(const PipeOrgan& organ);

} // namespace velmora
