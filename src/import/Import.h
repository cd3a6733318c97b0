#pragma once

#include "audio/DecodingOptions.h"
#include "import/BackgroundLoading.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/InstrumentHost.h"
#include "sound/ALInstrument.h"
#include "sound/ConsoleDefinition.h"
#include "sound/MIDIInstrument.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class DecodedCache;

/// The samples of this user's compressed sound files, at most 8 GB of them.
DecodedCache& decodedSamples();

/// The result of an import while it is being built. Importers throw FormatError if the file cannot
/// be used and Cancelled if the host cancels; the unfinished result is then discarded.
struct Import {
    Import(InstrumentHost& importHost, const ImportOptions& importOptions)
        : instrument(std::make_unique<ALInstrument>()), options(importOptions), host(importHost)
    {
    }

    /// Counts the ranks for the report and draws the first stop, which must exist.
    void finish();

    /// How the sound files of the instrument are to be decoded.
    DecodingOptions decoding() const;

    /// Counts the ranks for the report.
    void countRanks();

    std::unique_ptr<ALInstrument> instrument; ///< Never null; starts without stops.

    /// Loads what is not yet in `instrument`; null if nothing is left.
    std::unique_ptr<BackgroundLoading> background;

    /// Takes the place of `instrument` if it is not null.
    std::unique_ptr<MIDIInstrument> presets;

    /// The console of an organ whose ranks are the stops of `instrument`.
    std::optional<ConsoleDefinition> console;

    std::string name; ///< The display name; empty if the file has none.

    /// The names of the instruments that the file holds, if it holds several;
    /// `ImportOptions::choice` is a position in it.
    std::vector<std::string> choices;

    ImportReport report;
    ImportOptions options;
    InstrumentHost& host;

    /// What grants the memory for the samples.
    MemoryGuard* memory = &MemoryGuard::machine();
};

/// Thrown by an importer when the host has cancelled the import.
struct Cancelled {};

} // namespace velmora
