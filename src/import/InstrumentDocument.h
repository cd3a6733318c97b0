#pragma once

#include "audio/MusicDevice.h"
#include "import/ImportReport.h"
#include "import/InstrumentHost.h"
#include "sound/Instrument.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace velmora {

/// An instrument and its display name: the General MIDI player, or what was read from a file.
class InstrumentDocument {
public:
    /// A document without an instrument, to be read into.
    InstrumentDocument() = default;

    /// The built-in General MIDI player on a synthesizer, which it takes over.
    static std::unique_ptr<InstrumentDocument>
    initWithMIDIPlayer(std::unique_ptr<MusicDevice> synthesizer);

    /// The type of file that the extension stands for, in any letter case: "SoundFont" (.sf2),
    /// "Gigasampler" (.gig), "XML" (.organ_hauptwerk_xml, .xml), "Organ" (.organ), "EXS" (.exs).
    /// Empty for any other extension.
    static std::string typeOf(const std::filesystem::path& path);

    /// Reads an instrument from a file of a type; any type that is not named above is read as
    /// "Organ". False where it cannot be read, with the reason in `errorString()`, and where the
    /// host cancelled, with no reason: the document stays as it was. "EXS" succeeds without an
    /// instrument. Needs a current OpenAL context.
    bool readFromURL(const std::filesystem::path& path, const std::string& type,
                     InstrumentHost& host);

    /// Reads the file anew that was last read; for the rest as `readFromURL`.
    bool reload(InstrumentHost& host) { return readFromURL(path_, type_, host); }

    /// Whether the instrument was read from a file.
    bool isFromFile() const { return !path_.empty(); }

    /// Whether the instrument can be spared: it was read from a file and does not sound.
    bool canUnload() const;

    /// Frees the instrument with its samples, until it is reloaded.
    void unload() { instrument_.reset(); }

    /// Why the last reading failed: a sentence that names the file. Empty where it did not.
    const std::string& errorString() const { return errorString_; }

    /// What the last successful reading brought in and left out.
    const ImportReport& report() const { return report_; }

    /// Null until one was read, and once it is unloaded.
    Instrument* getInstrument() const { return instrument_.get(); }

    const std::string& getName() const { return name_; }

    /// The file that was last read, and its type; empty for the General MIDI player.
    const std::filesystem::path& path() const { return path_; }
    const std::string& type() const { return type_; }

    /// Bytes of sample memory; 0 without an instrument.
    std::int64_t getSize() const { return instrument_ ? instrument_->usage : 0; }

private:
    InstrumentDocument(std::unique_ptr<Instrument> instrument, std::string name);

    std::unique_ptr<Instrument> instrument_;
    std::string name_;
    std::filesystem::path path_;
    std::string type_;
    std::string errorString_;
    ImportReport report_;
};

} // namespace velmora
