#pragma once

#include "base/FormatError.h"
#include "midi/MidiFileHeader.h"
#include "midi/TempoMap.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velmora {

/// One event of a track as it stands in its file. The status is there even where the file leaves
/// it out.
struct FileEvent {
    std::uint64_t tick;    ///< From the start of the track.
    std::string_view data; ///< What follows the status; a part of the file's bytes.
    std::uint8_t status;
};

/// A track, without its end-of-track mark.
struct FileTrack {
    std::vector<FileEvent> events;         ///< In order of time.
    std::uint64_t end = 0;                 ///< The tick of the end-of-track mark.
    std::optional<std::uint8_t> channel{}; ///< For which the track was added to the file.
};

/// A note that starts with one event of a track and ends with another.
struct FileNote {
    static constexpr std::uint32_t kTrackEnd = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t on;
    std::uint32_t off; ///< `kTrackEnd` if the note sounds until its track ends.
};

/// Every event of a Standard MIDI File.
struct MidiFileEvents {
    MidiFileHeader header;
    std::vector<FileTrack> tracks;
    TempoMap tempoMap;                 ///< As in `StandardMidiFile`.
    std::optional<FormatError> damage; ///< Why it was not read to its end; nothing if it was.
};

/// Reads a Standard MIDI File as far as it can be read: what follows an error in a track is left
/// out, and so are tracks that are missing. The bytes must outlive the result. Throws FormatError
/// if nothing could be read.
MidiFileEvents readMidiFileEvents(std::span<const std::byte> bytes);

/// Returns the notes of a track in the order in which they start. A note-off ends the earliest note
/// of its channel and key, unless a `kSkipNotes` event precedes it.
std::vector<FileNote> notesOf(const FileTrack& track);

/// Returns what follows the type and the length of a meta event; empty if it has another type or is
/// cut short.
std::string_view metaData(const FileEvent& event, std::uint8_t type);

/// Makes a file that counts SMPTE frames count the ticks of beats of half a second, so that tempo
/// events have an effect. Times are rounded if a beat is no whole number of its ticks.
void countInBeats(MidiFileEvents& file);

/// Returns whether the event is a `kSkipNotes` event.
bool skipsNotes(const FileEvent& event);

} // namespace velmora
