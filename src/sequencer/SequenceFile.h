#pragma once

#include "platform/StandardMidiFile.h"
#include "sequencer/Sequence.h"

/// The notes of a file in steps: sixteenths of the file's seconds.
constexpr double kStepsPerSecond = 16.0;

/// What a document keeps of a file that was read, besides its notes.
struct SequenceFile {
    double mx = 0.0;         ///< Extent in steps: the end of the last note and 32 more.
    bool isImported = false; ///< The file holds more than the sequence keeps.
};

/// Adds the notes of a file to an empty sequence and sorts it. Kept are the notes of the keys from
/// `keyRangeLo` to `keyRangeHi`, both included, that last at all. The file holds more than that
/// when it has several tracks or any other event.
SequenceFile readSequence(const StandardMidiFile& file, int keyRangeLo, int keyRangeHi,
                          Sequence& sequence);
