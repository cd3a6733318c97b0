#include "sequencer/SourceFile.h"

#include "midi/messages.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SourceFileWriter.h"

#include <cstdint>
#include <utility>

namespace velmora {

SourceFile::SourceFile(std::vector<std::byte> bytes, Sequence& sequence) : bytes_(std::move(bytes))
{
    const MidiFileEvents file = readMidiFileEvents(bytes_);
    damage_ = file.damage;
    std::uint32_t origin = 0;
    for (const FileTrack& track : file.tracks) {
        const std::vector<FileNote> notes = notesOf(track);
        sequence.reserve(sequence.notes().size() + notes.size());
        const auto stepAt = [&](std::uint64_t tick) {
            const double beats = static_cast<double>(tick) / file.header.ticksPerBeat;
            return file.tempoMap.secondsForBeats(beats) * kStepsPerFileSecond;
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

std::string SourceFile::write(const Sequence& sequence) const
{
    return SourceFileWriter(readMidiFileEvents(bytes_), sequence).write();
}

} // namespace velmora
