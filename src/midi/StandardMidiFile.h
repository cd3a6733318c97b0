#pragma once

#include "midi/TempoMap.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace velmora {

/// One event of a track. Of an event that is no note only the time stamp is kept.
struct MidiEvent {
    enum class Kind : std::uint8_t { Note, Other };

    double beats;   ///< Time stamp, from the beginning of the file.
    float duration; ///< Of a note, in beats; 0 or more.
    Kind kind;
    std::uint8_t channel;  ///< Of a note, 0 to 15.
    std::uint8_t key;      ///< Of a note, 0 to 127.
    std::uint8_t velocity; ///< Of a note, 1 to 127.
};

/// What a Standard MIDI File holds, note-ons and note-offs joined to notes.
struct StandardMidiFile {
    /// The events of every track in time order. The end-of-track mark is none, nor is a note-off
    /// that ends nothing.
    std::vector<std::vector<MidiEvent>> tracks;

    /// The tempo events of all tracks. A beat is a quarter note. In a file that counts by SMPTE
    /// frames a beat is half a second, whatever its tempo events say.
    TempoMap tempoMap;

    double secondsForBeats(double beats) const { return tempoMap.secondsForBeats(beats); }
};

/// Begins a sequencer-specific event (FF 7F) of Velmora's, under the manufacturer's number of those
/// who have none. A byte follows: the next note-off ends not the first note of its channel and key
/// that goes on, but the one behind so many.
constexpr std::string_view kPassedOver = "\x7DVelmora";

/// Reads a file of format 0, 1 or 2, bare or in a RIFF wrapping ("RMID"). As many tracks are read
/// as the header announces; chunks of other kinds are stepped over and what follows the last track
/// is not looked at. A note ends at the first note-off of its channel and key in its track that no
/// earlier note has taken, at the latest at the end of the track, unless `kPassedOver` says
/// otherwise. Throws FormatError with the byte where the file breaks the format: nothing is half
/// read.
/// The format: "Standard MIDI Files 1.0" (MIDI Manufacturers Association, RP-001).
StandardMidiFile readStandardMidiFile(std::span<const std::byte> bytes);

} // namespace velmora
