#pragma once

#include "audio/Pcm.h"
#include "base/MemoryGuard.h"
#include "import/ImportOptions.h"
#include "import/PipeOrgan.h"
#include "sound/LoadState.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

struct Import;

/// An instrument does not fit into the memory.
class TooLarge : public MemoryShortage {
public:
    TooLarge(const std::string& message, std::vector<ImportOptions> fitting)
        : MemoryShortage(message), fitting_(std::move(fitting))
    {
    }

    /// With which other options it would fit, the least loss first; empty if with none.
    const std::vector<ImportOptions>& fitting() const { return fitting_; }

private:
    std::vector<ImportOptions> fitting_;
};

/// How many bytes the samples of an instrument take, as they are and in the forms that take less.
class MemoryNeeds {
public:
    /// Counts samples that take `bytes` as they are; `pcm` has samples of their kind.
    void add(std::uint64_t bytes, const Pcm& pcm);

    void add(const MemoryNeeds& other);

    std::uint64_t asTheyAre() const { return asTheyAre_; }

    /// Throws TooLarge unless they fit into the memory that is free for the import. `fewer` are the
    /// options with which fewer of them are loaded, so that they fit. The message says what would
    /// fit.
    void require(const Import& import, const std::vector<ImportOptions>& fewer) const;

private:
    std::uint64_t asTheyAre_ = 0;
    std::uint64_t in16Bit_ = 0;
    std::uint64_t inMono_ = 0;
    std::uint64_t in16BitMono_ = 0;
};

/// Returns the size of the sample files of an organ in bytes.
std::uint64_t packedSize(const PipeOrgan& organ);

/// A rank of an organ, and whether it is `Loading` or why it is left out.
using PlannedRank = std::pair<std::size_t, LoadState>;

/// Returns all ranks of an organ in the order in which they are to be loaded. Refuses an organ
/// whose samples do not fit into the memory, before they are loaded. Where that is in doubt, a file
/// of each rank is decoded, and the others are taken to be alike. Throws TooLarge and Cancelled.
std::vector<PlannedRank> planRanks(const PipeOrgan& organ, const Import& import);

} // namespace velmora
