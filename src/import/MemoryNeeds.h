#pragma once

#include "audio/Pcm.h"
#include "import/PipeOrgan.h"

#include <cstdint>

namespace velmora {

struct Import;

/// How many bytes the samples of an instrument take, as they are and in the forms that take less.
class MemoryNeeds {
public:
    /// Counts samples that take `bytes` as they are; `pcm` has samples of their kind.
    void add(std::uint64_t bytes, const Pcm& pcm);

    /// Throws MemoryShortage unless they fit into the memory that is free for the import. The
    /// message says what would fit.
    void require(const Import& import) const;

private:
    std::uint64_t asTheyAre_ = 0;
    std::uint64_t in16Bit_ = 0;
    std::uint64_t inMono_ = 0;
    std::uint64_t in16BitMono_ = 0;
};

/// Returns the size of the sample files of an organ in bytes.
std::uint64_t packedSize(const PipeOrgan& organ);

/// Refuses an organ whose samples do not fit into the memory, before they are loaded. Where that is
/// in doubt, a file of each rank is decoded, and the others are taken to be alike. Throws
/// MemoryShortage.
void requireMemory(const PipeOrgan& organ, const Import& import);

} // namespace velmora
