#pragma once

#include "import/ImportReport.h"
#include "import/InstrumentHost.h"
#include "sound/ALInstrument.h"

#include <memory>
#include <string>

namespace velmora {

/// One import in the making: what every importer fills. Importers throw FormatError where the file
/// cannot be used and Cancelled where the host gives up; what they made so far goes with the
/// import.
struct Import {
    explicit Import(InstrumentHost& importHost)
        : instrument(std::make_unique<ALInstrument>()), host(importHost)
    {
    }

    /// Ends it: counts the stops that sound as ranks and draws the first stop, which there must be.
    void finish();

    std::unique_ptr<ALInstrument> instrument; ///< begins without stops, never null
    std::string name;                         ///< for display; empty where the file gives none
    ImportReport report;
    InstrumentHost& host;
};

/// Thrown between two steps of an import that the host has cancelled.
struct Cancelled {};

} // namespace velmora
