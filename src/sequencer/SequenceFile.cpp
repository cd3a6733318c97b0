#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace {

constexpr double kRoomBehindLastNote = 32.0;
constexpr float kFullVelocity = 127.0F;

std::optional<Note> keptNote(const StandardMidiFile& file, const MidiEvent& event, int keyRangeLo,
                             int keyRangeHi)
{
    if (event.kind != MidiEvent::Kind::Note || event.key < keyRangeLo || event.key > keyRangeHi)
        return std::nullopt;
    // The duration is looked up as if it began with the file, as it is when a sequence is written:
    // under a changing tempo this is not the time from the note's start to its end.
    const double seconds = file.secondsForBeats(static_cast<double>(event.duration));
    if (!(seconds > 0.0))
        return std::nullopt;

    Note note;
    note.start = note.oldStart = file.secondsForBeats(event.beats) * kStepsPerSecond;
    note.length = note.oldLength = seconds * kStepsPerSecond;
    note.velocity = static_cast<float>(event.velocity) / kFullVelocity;
    note.channel = event.channel;
    note.key = note.oldKey = event.key;
    return note;
}

} // namespace

SequenceFile readSequence(const StandardMidiFile& file, int keyRangeLo, int keyRangeHi,
                          Sequence& sequence)
{
    SequenceFile result{0.0, file.tracks.size() > 1};
    std::ptrdiff_t notes = 0;
    for (const auto& track : file.tracks)
        notes += std::count_if(track.begin(), track.end(), [](const MidiEvent& event) {
            return event.kind == MidiEvent::Kind::Note;
        });
    sequence.reserve(static_cast<std::size_t>(notes));

    for (const auto& track : file.tracks) {
        for (const MidiEvent& event : track) {
            if (const auto note = keptNote(file, event, keyRangeLo, keyRangeHi)) {
                sequence.addNote(*note);
                result.mx = std::max(result.mx, note->start + note->length + kRoomBehindLastNote);
            } else {
                result.isImported = true;
            }
        }
    }
    sequence.sort();
    return result;
}
