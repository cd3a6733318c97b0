#pragma once

#include "midi/StandardMidiFileWriter.h"

#include <span>
#include <string>

namespace velmora {

/// Writes the top line of some notes as an iMelody text at 120 beats a minute ("iMelody", Infrared
/// Data Association, IrMC, version 1.2). The notes may be in any order; their durations must be
/// above 0 and their ends at most `kLastBeat`.
///
/// If notes overlap, the highest one is written. A lower note is written before and after it,
/// unless that part is shorter than both a sixteenth and half of the note.
///
/// Each note gets the nearest length that the format can express, from two thirds of a 1/32 to a
/// double-dotted whole note, or a shorter one if the next note would be late otherwise. Rounding
/// errors do not accumulate. Keys below the lowest octave (*0, from MIDI key 24) are raised by
/// octaves.
std::string writeIMelody(std::span<const MidiEvent> notes);

} // namespace velmora
