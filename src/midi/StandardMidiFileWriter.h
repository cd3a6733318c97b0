#pragma once

#include "midi/StandardMidiFile.h"

#include <span>
#include <string>

namespace velmora {

/// The ticks of a beat in the files that are written: the finest distance of two onsets.
constexpr double kTicksPerBeat = 4096.0;

/// What is written ends by then: two years.
constexpr double kLastBeat = 0x1p27;

/// A file of format 0 with notes that end by `kLastBeat`, in any order, in its one track. There is
/// no tempo event: the beats pass at 120 a minute. Times go to the nearest tick, and every note
/// lasts at least one.
///
/// Of notes of one key and channel that overlap, readers take the one that begins first for the one
/// that ends first. Where it is not, `kPassedOver` tells which one ends; for readers that do not
/// know it, and behind more than 255, a note within another one exchanges its end with it. Throws
/// std::length_error for more notes than a file can hold. The format: "Standard MIDI Files 1.0"
/// (MIDI Manufacturers Association, RP-001).
std::string writeStandardMidiFile(std::span<const MidiEvent> notes);

} // namespace velmora
