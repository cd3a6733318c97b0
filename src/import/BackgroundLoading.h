#pragma once

#include "import/ImportReport.h"
#include "sound/LoadState.h"

#include <cstddef>
#include <functional>

namespace velmora {

/// The stops of an instrument that are being loaded while others can be played already. It must be
/// destroyed before the instrument.
class BackgroundLoading {
public:
    /// Calls a change that adds a rank to the instrument while nobody plays it.
    using Exclusively = std::function<void(std::size_t rank, const std::function<void()>& change)>;

    virtual ~BackgroundLoading() = default;

    /// Adds what has been loaded since the last call, for a few milliseconds at most, and reports
    /// what is left out. Returns false when nothing is left to load. Throws FormatError and
    /// std::bad_alloc; it cannot go on then.
    virtual bool advance(ImportReport& report, const Exclusively& exclusively) = 0;

    /// Reports the ranks that are not loaded as left out for that reason. It cannot go on then.
    virtual void giveUp(LoadState why, ImportReport& report) = 0;

    /// How much is loaded, from 0 to 1.
    virtual double progress() const = 0;
};

} // namespace velmora
