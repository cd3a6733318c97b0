#include "midi/StandardMidiFileWriter.h"

#include "midi/MidiTrack.h"
#include "midi/OpenNotes.h"
#include "midi/messages.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <tuple>
#include <vector>

namespace velmora {

namespace {

/// A note-on or a note-off.
struct Message {
    std::uint64_t tick;
    std::uint64_t until; ///< The end of the note for a note-on, 0 for a note-off.
    std::uint8_t status;
    std::uint8_t key;
    std::uint8_t velocity;
};

/// At the same tick, note-offs come before note-ons, so that a note that touches the next one of
/// its key does not overlap it. Of two notes that start together the shorter comes first, since it
/// ends first.
/// See docs/decisions.md, 121.
bool comesBefore(const Message& a, const Message& b)
{
    return std::tie(a.tick, a.until) < std::tie(b.tick, b.until);
}

std::uint64_t ticks(double beats)
{
    assert(beats >= 0.0 && beats <= kLastBeat);
    return static_cast<std::uint64_t>(std::round(beats * kTicksPerBeat));
}

std::vector<Message> messagesOf(std::span<const MidiEvent> notes)
{
    std::vector<Message> messages;
    messages.reserve(2 * notes.size());
    for (const MidiEvent& note : notes) {
        const std::uint64_t begin = ticks(note.beats);
        const auto length = ticks(static_cast<double>(note.duration));
        const std::uint64_t end = begin + std::max<std::uint64_t>(length, 1);
        const auto status = [&](int kind) {
            return static_cast<std::uint8_t>(kind | note.channel);
        };
        messages.push_back({begin, end, status(midi::kNoteOn), note.key, note.velocity});
        messages.push_back({end, 0, status(midi::kNoteOff), note.key, 0});
    }
    std::stable_sort(messages.begin(), messages.end(), comesBefore);
    return messages;
}

} // namespace

std::string writeStandardMidiFile(std::span<const MidiEvent> notes)
{
    MidiTrack track;
    OpenNotes<std::uint64_t> ends;
    for (const Message& message : messagesOf(notes)) {
        const std::uint64_t tick = message.tick;
        const unsigned channel = static_cast<unsigned>(message.status & midi::kChannelMask);
        if (message.until > 0) {
            ends.start(channel, message.key, message.until);
        } else {
            std::size_t skipped = 0;
            const auto ended = ends.end(channel, message.key, [&](std::uint64_t end) {
                skipped += end == tick ? 0 : 1;
                return end == tick;
            });
            // The event before a note-off that says how many notes it skips.
            if (ended == tick && skipped > 0)
                track.addMetaEvent(tick, midi::kSequencerSpecific,
                                   std::string(kSkipNotes) + static_cast<char>(skipped));
        }
        track.addMessage(tick, {message.status, message.key, message.velocity});
    }
    // See docs/decisions.md, 118.
    return track.finish(static_cast<std::uint16_t>(kTicksPerBeat));
}

} // namespace velmora
