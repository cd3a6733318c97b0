#pragma once

#include <string>

namespace velmora {

class FileEdits;
class MusicalTime;
struct MidiFileEvents;
struct TimeSignature;

/// Adds to `edits` what gives a file the tempos, signatures and markers of `time`. Events of the
/// file that say the same stay. A file that counts SMPTE frames counts beats if it gets a tempo.
void editTime(MidiFileEvents& file, const MusicalTime& time, FileEdits& edits);

/// Returns what the meta event of a signature holds.
std::string dataOf(const TimeSignature& signature);

} // namespace velmora
