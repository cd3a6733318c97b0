#pragma once

#include "midi/TempoMap.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace velmora {

/// One event of a track. For an event that is not a note, only the time is kept.
struct MidiEvent {
    enum class Kind : std::uint8_t { Note, Other };

    double beats;   ///< Time from the start of the file, in beats.
    float duration; ///< Length of a note in beats; 0 or more.
    Kind kind;
    std::uint8_t channel;  ///< 0 to 15.
    std::uint8_t key;      ///< MIDI key, 0 to 127.
    std::uint8_t velocity; ///< 1 to 127.
};

/// The contents of a Standard MIDI File, with note-ons and note-offs paired to notes.
struct StandardMidiFile {
    /// The events of each track in order of time, without end-of-track marks and unpaired
    /// note-offs.
    std::vector<std::vector<MidiEvent>> tracks;

    /// The tempo events of all tracks. A beat is a quarter note. In a file with SMPTE time, tempo
    /// events have no effect and a beat is half a second.
    TempoMap tempoMap;

    double secondsForBeats(double beats) const { return tempoMap.secondsForBeats(beats); }
};

/// The start of a sequencer-specific event (FF 7F) that Velmora writes if notes of one key overlap.
/// 7D is the manufacturer ID for non-commercial use. One more byte follows: how many notes of its
/// channel and key the next note-off skips before it ends one.
/// See docs/decisions.md, 119.
constexpr std::string_view kSkipNotes = "\x7DVelmora";

/// Reads a file of format 0, 1 or 2 ("Standard MIDI Files 1.0", MIDI Manufacturers Association,
/// RP-001), bare or wrapped in RIFF ("RMID"). Reads as many tracks as the header announces; ignores
/// chunks of other kinds and everything after the last track.
///
/// A note-off ends the earliest open note of its channel and key in its track, unless a
/// `kSkipNotes` event precedes it. Notes that are still open end with the track. Throws FormatError
/// with the offset of the first invalid byte.
StandardMidiFile readStandardMidiFile(std::span<const std::byte> bytes);

} // namespace velmora
