#pragma once

#include "midi/StandardMidiFileWriter.h"

#include <span>
#include <string>

namespace velmora {

/// The highest line of notes that last at all and end by `kLastBeat`, in any order, as an iMelody
/// text at 120 beats a minute. The format: "iMelody" (Infrared Data Association, IrMC),
/// version 1.2.
///
/// The highest note sounds where notes overlap; a lower one is heard before and after it, but not
/// where it only peeps out for less than a sixteenth and for less than half of its length. Each
/// note takes the length nearest to its own among those that the format writes, from two thirds of
/// a 1/32 to a double-dotted whole one, unless that would make the next one late; it is measured
/// from where the text has come to, so that the differences do not add up. Keys below the lowest
/// octave (*0, from MIDI key 24) go up by octaves; *8 holds the highest.
std::string writeIMelody(std::span<const MidiEvent> notes);

} // namespace velmora
