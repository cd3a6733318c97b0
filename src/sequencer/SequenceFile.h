#pragma once

#include "midi/StandardMidiFile.h"
#include "sequencer/Sequence.h"

#include <filesystem>
#include <string>

namespace velmora {

constexpr const char* kMidiFileType = "MIDI File";
constexpr const char* kIMelodyType = "iMelody";

/// The document type of a sequence file by its extension; empty for other files.
std::string sequenceTypeOf(const std::filesystem::path& path);

/// The notes of a file in steps: sixteenths of the file's seconds.
constexpr double kStepsPerSecond = 16.0;

/// How far the extent of a sequence goes beyond the end of its last note, in steps.
constexpr double kRoomBehindLastNote = 32.0;

/// What a document keeps of a file that was read, besides its notes.
struct SequenceFile {
    double extent = 0.0;     ///< Extent in steps: the end of the last note and 32 more.
    bool isImported = false; ///< The file holds more than the sequence keeps.
};

/// Adds the notes of a file to an empty sequence and sorts it. Kept are the notes of the keys from
/// `keyRangeLo` to `keyRangeHi`, both included, that last at all. The file holds more than that
/// when it has several tracks or any other event.
SequenceFile readSequence(const StandardMidiFile& file, int keyRangeLo, int keyRangeHi,
                          Sequence& sequence);

/// The bytes of a file of one of the two types, with the notes at 120 beats a minute: a step is an
/// eighth of a beat. What a file cannot hold is brought within its bounds: a note before the
/// beginning starts with it, one without a length is the shortest there is, of a channel the low
/// four bits remain, and a velocity that would be 0 and so end a note is 1. Throws
/// std::length_error where a note lies beyond all music.
std::string writeSequence(const Sequence& sequence, const std::string& type);

} // namespace velmora
