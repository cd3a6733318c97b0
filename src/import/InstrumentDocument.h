#pragma once

#include "audio/MusicDevice.h"
#include "import/BackgroundLoading.h"
#include "import/ImportOptions.h"
#include "import/ImportReport.h"
#include "import/InstrumentFormat.h"
#include "import/InstrumentHost.h"
#include "sound/Instrument.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// An instrument and its display name: the General MIDI player, or an instrument from a file.
class InstrumentDocument {
public:
    /// Creates a document without an instrument; `read` loads one.
    InstrumentDocument() = default;

    /// Creates the built-in General MIDI player on a synthesizer.
    static std::unique_ptr<InstrumentDocument>
    makeMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer);

    /// Reads an instrument from a file. On failure the document stays as it was and the result is
    /// false; `errorString()` says why, and is empty if the host cancelled the import. A file of
    /// the format `Exs` is accepted but holds no instrument. Needs a current OpenAL context.
    bool read(const std::filesystem::path& path, InstrumentFormat format,
              const ImportOptions& options, InstrumentHost& host);

    /// Reads the last file again with the same options, like `read`.
    bool reload(InstrumentHost& host) { return read(path_, format_, options_, host); }

    /// True if the instrument was read from a file.
    bool isFromFile() const { return !path_.empty(); }

    /// True if the instrument can be unloaded: it was read from a file and is silent.
    bool canUnload() const;

    /// Frees the instrument with its samples, until it is reloaded, and stops loading it.
    void unload();

    /// Leaves out what is not loaded yet. The report names it.
    void stopLoading();

    /// How much of the instrument is loaded, from 0 to 1, while the rest is being loaded in the
    /// background; empty if nothing more follows.
    std::optional<double> loadingProgress() const;

    /// Adds what has been loaded in the background since the last call, for a few milliseconds at
    /// most. The report says what could not be loaded.
    void continueLoading(const BackgroundLoading::Exclusively& exclusively);

    /// A sentence that names the file and says why the last `read` failed; empty if it did not.
    const std::string& errorString() const { return errorString_; }

    /// With which other options the last file would fit into the memory, the least loss first, if
    /// the last `read` failed because it does not fit.
    const std::vector<ImportOptions>& fitting() const { return fitting_; }

    /// What the last successful import loaded and skipped.
    const ImportReport& report() const { return report_; }

    /// The instruments that the last file holds, if it holds several. `ImportOptions::choice` is
    /// the position of the one to read.
    const std::vector<std::string>& choices() const { return choices_; }

    /// Null until an instrument has been read, and after it is unloaded.
    Instrument* instrument() const { return instrument_.get(); }

    const std::string& name() const { return name_; }

    /// The name for people: `name` without a file extension and without the number of a copy; the
    /// file's name if the instrument has none.
    std::string title() const;

    /// The file that was last read; empty for the General MIDI player.
    const std::filesystem::path& path() const { return path_; }

    /// The format of that file.
    InstrumentFormat format() const { return format_; }

    /// How that file was read.
    const ImportOptions& options() const { return options_; }

    /// Size of the samples in bytes; 0 without an instrument.
    std::int64_t size() const { return instrument_ ? instrument_->usage : 0; }

private:
    InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name);

    void endLoading(LoadState why);

    std::unique_ptr<Instrument> instrument_;
    std::unique_ptr<BackgroundLoading> background_; ///< Null if everything is loaded.
    std::string name_;
    std::filesystem::path path_;
    InstrumentFormat format_ = InstrumentFormat::SoundFont;
    ImportOptions options_;
    std::string errorString_;
    std::vector<ImportOptions> fitting_;
    ImportReport report_;
    std::vector<std::string> choices_;
};

} // namespace velmora
