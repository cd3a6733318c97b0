#pragma once

#include "midi/StandardMidiFile.h"

#include <span>
#include <string>

namespace velmora {

/// Ticks per beat in written files; the time resolution.
constexpr double kTicksPerBeat = 4096.0;

/// The latest end of a note that can be written: about two years.
constexpr double kLastBeat = 0x1p27;

/// Writes notes, in any order, as a file of format 0 ("Standard MIDI Files 1.0", MIDI Manufacturers
/// Association, RP-001). Notes must end by `kLastBeat`. There is no tempo event, so the tempo is
/// 120 beats a minute. Times are rounded to the nearest tick; a note lasts at least one tick.
///
/// If notes of one key and channel overlap, readers assume that the first to start is the first to
/// end. If that is wrong, a `kSkipNotes` event says which note ends. Readers that do not know
/// the event exchange the ends of two such notes; so does every reader if more than 255 notes have
/// to be skipped. Throws std::length_error if there are more notes than a file can hold.
std::string writeStandardMidiFile(std::span<const MidiEvent> notes);

} // namespace velmora
