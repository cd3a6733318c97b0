#include "sequencer/SequenceFile.h"

#include "base/Text.h"
#include "midi/IMelody.h"
#include "midi/StandardMidiFileWriter.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>

namespace velmora {

namespace {

constexpr float kFullVelocity = 127.0F;

constexpr double kBeatsPerStep = 1.0 / kStepsPerBeat;

std::optional<Note> keptNote(const StandardMidiFile& file, const MidiEvent& event, int keyRangeLo,
                             int keyRangeHi)
{
    // See docs/decisions.md, 85.
    if (event.kind != MidiEvent::Kind::Note || event.key < keyRangeLo || event.key > keyRangeHi)
        return std::nullopt;
    // A duration is converted as if it began with the file, as it is when a sequence is written. If
    // the tempo changes, this is not the time from the note's start to its end.
    // See docs/decisions.md, 84.
    const double seconds = file.secondsForBeats(static_cast<double>(event.duration));
    if (!(seconds > 0.0))
        return std::nullopt;

    Note note;
    note.start = note.oldStart = file.secondsForBeats(event.beats) * kStepsPerFileSecond;
    note.length = note.oldLength = seconds * kStepsPerFileSecond;
    note.velocity = static_cast<float>(event.velocity) / kFullVelocity;
    note.channel = event.channel;
    note.key = note.oldKey = event.key;
    return note;
}

MidiEvent midiNote(const Note& note)
{
    const double start = std::max(note.start * kBeatsPerStep, 0.0);
    const double length = std::max(note.length * kBeatsPerStep, 1.0 / kTicksPerBeat);
    if (!(start + length <= kLastBeat))
        throw std::length_error("a note is later than a file can hold");
    // A MIDI message has four bits for the channel and seven for the key.
    const auto channel = static_cast<std::uint8_t>(note.channel & 0x0F);
    const auto key = static_cast<std::uint8_t>(note.key & 0x7F);
    return {start, static_cast<float>(length), MidiEvent::Kind::Note, channel,
            key,   midiVelocity(note.velocity)};
}

} // namespace

// See docs/decisions.md, 120.
std::uint8_t midiVelocity(float velocity)
{
    // Multiplied in floats, as it was divided: in doubles some velocities would come back one
    // lower.
    const float scaled = velocity * kFullVelocity;
    return static_cast<std::uint8_t>(scaled >= 1.0F ? std::min(scaled, kFullVelocity) : 1.0F);
}

std::optional<SequenceFormat> sequenceFormatOf(const std::filesystem::path& path)
{
    constexpr std::array kMidiExtensions = {".mid", ".midi", ".smf", ".kar"};
    const std::string extension = lowerCase(path.extension().string());
    if (std::ranges::find(kMidiExtensions, extension) != kMidiExtensions.end())
        return SequenceFormat::MidiFile;
    return extension == ".imy" ? std::optional(SequenceFormat::IMelody) : std::nullopt;
}

std::string typeName(SequenceFormat format)
{
    return format == SequenceFormat::IMelody ? "iMelody" : "MIDI File";
}

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
                result.extent = std::max(result.extent, extentOf(*note));
            } else {
                // See docs/decisions.md, 86.
                result.isImported = true;
            }
        }
    }
    sequence.sort();
    return result;
}

std::string writeSequence(const Sequence& sequence, SequenceFormat format)
{
    std::vector<MidiEvent> notes(sequence.notes().size());
    std::ranges::transform(sequence.notes(), notes.begin(), midiNote);
    return format == SequenceFormat::IMelody ? writeIMelody(notes) : writeStandardMidiFile(notes);
}

} // namespace velmora
