#pragma once

#include "base/Reading.h"
#include "tuning/AdaptiveSettings.h"
#include "tuning/KeyTemperament.h"
#include "tuning/TuningFile.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

struct TuningShape;

/// A temperament and its display name: built in, or read from a tuning file.
class TuningDocument {
public:
    /// Creates a document whose temperament has no tunings until `read` succeeds.
    TuningDocument();

    /// Creates a document that belongs to no file.
    TuningDocument(std::string name, std::string description,
                   std::unique_ptr<const Temperament> temperament);

    /// Creates "Equal", "Dynamic", "Following Meantone", "Pure", a historical temperament by its
    /// name, or quarter-comma meantone under any other name.
    /// The settings are for the temperaments that follow the music.
    static std::unique_ptr<TuningDocument> makeBuiltin(const std::string& name,
                                                       const AdaptiveSettings& settings = {});

    /// Creates a changed copy of a tuning. Throws FormatError if a key would have no finite pitch.
    static std::unique_ptr<TuningDocument> makeEdited(const TuningDocument& original,
                                                      const TuningShape& shape, std::string name);

    /// Creates a tuning that a MIDI device has sent. Takes the frequency of each key as it sounds.
    static std::unique_ptr<TuningDocument> makeReceived(std::string name, const KeyPitches& hertz);

    /// The names of the adaptive tunings that `makeBuiltin` can create.
    static std::vector<std::string> adaptiveNames();

    /// True for the name of an adaptive or a historical tuning.
    static bool isBuiltin(const std::string& name);

    /// Reads a tuning file and takes its file name as the document's name. In the musical reading,
    /// scales have any number of notes (see `readScale`), in the plain one twelve (see
    /// `readTuning`). Returns false on failure; `errorString` then says why, and the temperament is
    /// unchanged.
    bool read(const std::filesystem::path& path, TuningFormat format,
              Reading reading = Reading::Musical);

    /// Returns a copy on the keys of a keyboard mapping, which is read from a file; an empty path
    /// stands for none. If that fails, the copy has the same keys, and its `errorString` says why.
    std::unique_ptr<TuningDocument> withMapping(const std::filesystem::path& file) const;

    /// The file of the keyboard mapping; empty if there is none.
    const std::filesystem::path& mappingPath() const { return mappingPath_; }

    /// What the reading had to ignore, in one sentence; empty if that is nothing.
    const std::string& warning() const { return warning_; }

    /// Why reading failed, in one sentence that names the file; empty after a success.
    const std::string& errorString() const { return errorString_; }

    /// The temperament in its initial state. To play it, make a copy with `fresh`.
    const Temperament& temperament() const { return *temperament_; }

    const std::string& name() const { return name_; }

    /// What a scale file says about itself, or the source of a historical temperament; empty for
    /// every other tuning.
    const std::string& description() const { return description_; }

    /// The name of the tuning that this one is an edited copy of, or a copy of a copy; empty for
    /// every other tuning.
    const std::string& original() const { return original_; }

    /// The frequency of each key, before any mapping, of a tuning that a MIDI device has sent;
    /// empty for every other tuning.
    const std::optional<KeyPitches>& received() const { return received_; }

    /// The file of the last successful `read`; empty for a built-in tuning.
    const std::filesystem::path& path() const { return path_; }

private:
    void readPlainly(std::span<const std::byte> bytes, TuningFormat format);
    void readMusically(std::span<const std::byte> bytes, TuningFormat format);

    std::string name_, description_, original_, warning_;
    std::filesystem::path path_, mappingPath_;
    std::unique_ptr<const Temperament> temperament_;
    std::optional<KeyPitches> received_;
    std::unique_ptr<const Temperament> unmapped_; ///< What was there before a mapping, if any.
    std::string errorString_;
};

} // namespace velmora
