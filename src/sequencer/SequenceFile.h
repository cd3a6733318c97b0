#pragma once

#include "midi/StandardMidiFile.h"
#include "sequencer/Sequence.h"

#include <filesystem>
#include <optional>
#include <string>

namespace velmora {

enum class SequenceFormat {
    MidiFile, ///< A Standard MIDI File.
    IMelody   ///< One voice for a mobile phone; can be written, but not read.
};

/// Returns the format that the file name's extension stands for, in any letter case: .mid, .midi,
/// .smf, .kar or .imy.
std::optional<SequenceFormat> sequenceFormatOf(const std::filesystem::path& path);

/// Returns the format's type name: "MIDI File" or "iMelody".
std::string typeName(SequenceFormat format);

/// In the plain reading a step is a sixteenth of a second of the file that is read.
constexpr double kStepsPerFileSecond = 16.0;

/// The distance from the end of the last note to the end of a sequence, in steps.
constexpr double kRoomBehindLastNote = 32.0;

/// The extent in steps of a sequence that ends with this note.
inline double extentOf(const Note& note)
{
    return note.start + note.length + kRoomBehindLastNote;
}

/// What a document keeps of a file besides its notes.
struct SequenceFile {
    double extent = 0.0;     ///< In steps: the end of the last note and 32 more; 0 without notes.
    bool isImported = false; ///< True if the file holds more than the sequence keeps.
};

/// Adds the notes of a file to an empty sequence and sorts it. Keeps the notes on the keys
/// `keyRangeLo` to `keyRangeHi`, both included, unless their length is 0. The file holds more than
/// the sequence keeps if it has several tracks or any other event.
SequenceFile readSequence(const StandardMidiFile& file, int keyRangeLo, int keyRangeHi,
                          Sequence& sequence);

/// Returns a velocity from 0 to 1 as a file holds it, from 1 to 127.
std::uint8_t midiVelocity(float velocity);

/// Returns the bytes of a file with the notes at 120 beats a minute, where a step is an eighth of a
/// beat. Values that a file cannot hold are limited: a start before the beginning, a length of 0,
/// which becomes one tick, a channel above 15, of which the low four bits remain, and a velocity
/// of 0, which becomes 1 because 0 would end a note. Throws std::length_error if a note is later
/// than a file can hold.
std::string writeSequence(const Sequence& sequence, SequenceFormat format);

} // namespace velmora
