#include "sequencer/SourceFile.h"

#include "midi/MidiTrack.h"
#include "midi/StandardMidiFileWriter.h"
#include "midi/messages.h"
#include "sequencer/Sequence.h"
#include "sequencer/SourceFileWriter.h"
#include "sequencer/editTime.h"
#include "sequencer/editVoices.h"

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace velmora {

namespace {

/// Adds a track for each voice that the file does not have, if the file may have several. The names
/// of tracks are those of their voices, unless two of them share one. A file of one track with one
/// voice therefore becomes one of several.
void addTracks(MidiFileEvents& file, const Sequence& sequence)
{
    std::bitset<midi::kChannels> before, now;
    for (const FileTrack& track : file.tracks)
        for (const FileEvent& event : track.events)
            if ((event.status & midi::kKindMask) == midi::kNoteOn)
                before.set(event.status & midi::kChannelMask);
    for (const Note& note : sequence.notes())
        now.set(note.channel % midi::kChannels);
    if (file.header.format == 0 && before.count() == 1 && (now & before).any() && now.count() > 1)
        file.header.format = 1;
    if (file.header.format != 1)
        return;
    constexpr std::size_t kMostTracks = 0xFFFF;
    for (std::uint8_t channel = 0; channel < midi::kChannels; ++channel)
        if (now[channel] && !before[channel] && file.tracks.size() < kMostTracks)
            file.tracks.emplace_back().channel = channel;
}

} // namespace

SourceFile::SourceFile()
{
    const std::string bytes = MidiTrack().finish(static_cast<std::uint16_t>(kTicksPerBeat));
    const auto view = std::as_bytes(std::span(bytes));
    bytes_.assign(view.begin(), view.end());
}

SourceFile::SourceFile(std::vector<std::byte> bytes, Sequence& sequence) : bytes_(std::move(bytes))
{
    const MidiFileEvents file = readMidiFileEvents(bytes_);
    damage_ = file.damage;
    time_ = musicalTimeOf(file);
    voices_ = voicesOf(file);
    programChanges_ = programChangesOf(file);
    controllers_ = controllersOf(file);
    std::uint32_t origin = 0;
    for (const FileTrack& track : file.tracks) {
        const std::vector<FileNote> notes = notesOf(track);
        sequence.reserve(sequence.notes().size() + notes.size());
        const auto stepAt = [&](std::uint64_t tick) {
            return static_cast<double>(tick) / file.header.ticksPerBeat * kStepsPerBeat;
        };
        for (const FileNote& fileNote : notes) {
            ++origin;
            const FileEvent& on = track.events[fileNote.on];
            const double start = stepAt(on.tick);
            const double length = stepAt(endOf(fileNote, track)) - start;
            if (!(length > 0.0))
                continue;
            Note note{.start = start, .length = length, .oldLength = length};
            note.velocity = static_cast<float>(on.data[1]) / 127.0F;
            note.channel = on.status & midi::kChannelMask;
            note.key = note.oldKey = static_cast<std::uint8_t>(on.data[0]);
            note.oldStart = start;
            note.origin = origin;
            sequence.addNote(note);
        }
    }
    sequence.sort();
}

std::string SourceFile::write(const Sequence& sequence, const MusicalTime& time,
                              const Voices& voices, const Controllers& controllers) const
{
    MidiFileEvents file = readMidiFileEvents(bytes_);
    addTracks(file, sequence);
    FileEdits edits;
    editTime(file, time, edits);
    editVoices(file, voices, edits);
    editControllers(file, controllers, edits);
    return SourceFileWriter(std::move(file), sequence, edits).write();
}

} // namespace velmora
