#pragma once

#include "app/SequenceRenderer.h"
#include "cli/selection.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

/// Thrown if a well-formed command line names something that does not exist.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Renders a sequence file to a sound file, or to a MIDI file that reproduces the tuning. Throws
/// UsageError, or std::runtime_error with a sentence if a file cannot be read or written.
void render(const std::filesystem::path& sequence, const std::filesystem::path& output,
            const Selection& selection, const RenderOptions& options);

/// Renders each voice of a sequence file to a sound file of its own in `folder`, which is created
/// if it does not exist, and all of them together to `output` unless that is empty. The files of
/// the voices have the format of `output`, or else WAV. Throws like `render`.
void renderStems(const std::filesystem::path& sequence, const std::filesystem::path& folder,
                 const std::filesystem::path& output, const Selection& selection,
                 const RenderOptions& options);

/// Returns the beats a minute at the beginning of a sequence file. Throws std::runtime_error with a
/// sentence if it cannot be read.
double tempoOf(const std::filesystem::path& sequence, bool plain);

/// Prints descriptions of tuning, instrument and sequence files, as text or as one JSON document
/// per file. Instruments are read as the selection says. Prints a sentence on standard error for
/// each file that cannot be read. Returns true if all could be read.
bool info(const std::vector<std::filesystem::path>& files, const Selection& selection, bool json);

/// Plays from the MIDI inputs until interrupted. Prints which output plays and which is missing.
/// Needs a QCoreApplication.
void live(const Selection& selection, const OutputSettings& output);

/// Prints the MIDI inputs, the sound outputs and the General MIDI bank in use.
void devices(bool json);

/// Plays from the MIDI inputs and prints the meters once a second until interrupted, as text or as
/// lines of JSON. Needs a QCoreApplication.
void watchDevices(bool json, const OutputSettings& output);

/// Prints what a report of a fault needs: the versions, what the machine has, and what would help
/// where something is missing. Must be called while the program has only one thread, without a
/// QCoreApplication.
void doctor(bool json);

} // namespace velmora
