#pragma once

#include "base/Reading.h"
#include "sequencer/Controllers.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/Sequence.h"
#include "sequencer/Voices.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmora {

class SourceFile;

/// An unsaved document, kept in case of a crash.
struct UnsavedSequence {
    std::filesystem::path path; ///< The document's file; empty if it has none.
    std::chrono::sys_time<std::chrono::milliseconds> time; ///< When it was kept.
    bool isImported = false;

    /// The notes in the document's order. Times, keys, channels and velocities are kept exactly;
    /// identities and flags are not.
    std::vector<Note> notes;

    MusicalTime musicalTime = {}; ///< The tempos and bars of the piece.
    Voices voices = newVoices();  ///< Who plays the channels of the piece.
    Controllers controllers = {};

    Reading reading = Reading::Musical; ///< Not kept on disk: the program that recovers chooses.

    /// What the notes come from, by their `origin`; null if there is nothing else to keep.
    std::shared_ptr<const SourceFile> source = nullptr;
};

/// Returns the bytes of a recovery file, big-endian: "VREC", the version, path, time, isImported,
/// the bytes of the source file, the tempos, time signatures, key signatures and markers, each with
/// their number first, the voices, the number of controllers and for each its step as a double, its
/// channel, number and value, the number of notes, and for each note its start, length, oldStart,
/// oldLength and velocity as doubles and its channel, key, oldKey and origin as 32-bit numbers.
std::string encodeUnsaved(const UnsavedSequence& sequence);

/// Decodes a recovery file, with its notes corrected by `makeValid`. Throws FormatError with the
/// byte offset if this is not a recovery file of this version or the one before, in which a step
/// was a sixteenth of a second of the source file, or it contains an invalid note.
UnsavedSequence decodeUnsaved(std::span<const std::byte> bytes);

} // namespace velmora
