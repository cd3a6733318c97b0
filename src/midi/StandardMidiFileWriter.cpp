#include "midi/StandardMidiFileWriter.h"

#include "midi/OpenNotes.h"
#include "midi/messages.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace velmora {

namespace {

/// The greatest value of a variable-length quantity of four bytes.
constexpr std::uint64_t kLongestDelta = 0x0FFFFFFF;

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

void addNumber(std::string& bytes, std::size_t value, int size)
{
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
}

/// Adds a variable-length quantity of at most `kLongestDelta`.
void addQuantity(std::string& bytes, std::uint64_t value)
{
    for (int shift = 21; shift > 0; shift -= 7) {
        if (value >> shift > 0)
            bytes += static_cast<char>((value >> shift & 0x7F) | 0x80);
    }
    bytes += static_cast<char>(value & 0x7F);
}

/// Adds the head of a meta event with `size` bytes of data.
void addMetaEvent(std::string& bytes, std::uint8_t type, std::size_t size)
{
    addNumber(bytes, midi::kMetaEvent, 1);
    addNumber(bytes, type, 1);
    addQuantity(bytes, size);
}

void addDelta(std::string& bytes, std::uint64_t delta)
{
    // See docs/decisions.md, 132.
    for (; delta > kLongestDelta; delta -= kLongestDelta) {
        addQuantity(bytes, kLongestDelta);
        addMetaEvent(bytes, midi::kText, 0);
    }
    addQuantity(bytes, delta);
}

/// Adds the event before a note-off that skips notes, and the delta time of 0 between them.
void addSkipNotes(std::string& bytes, std::size_t notes)
{
    addMetaEvent(bytes, midi::kSequencerSpecific, kSkipNotes.size() + 1);
    bytes += kSkipNotes;
    addNumber(bytes, notes, 1);
    addDelta(bytes, 0);
}

void addChunk(std::string& file, const char* id, const std::string& body)
{
    if (body.size() > 0xFFFFFFFF)
        throw std::length_error("there are more notes than a MIDI file can hold");
    file += id;
    addNumber(file, body.size(), 4);
    file += body;
}

} // namespace

std::string writeStandardMidiFile(std::span<const MidiEvent> notes)
{
    std::string header;
    addNumber(header, 0, 2); // format
    addNumber(header, 1, 2); // tracks
    // See docs/decisions.md, 118.
    addNumber(header, static_cast<std::size_t>(kTicksPerBeat), 2);

    std::string track;
    std::uint64_t tick = 0;
    OpenNotes<std::uint64_t> ends;
    for (const Message& message : messagesOf(notes)) {
        addDelta(track, message.tick - tick);
        tick = message.tick;
        const unsigned channel = static_cast<unsigned>(message.status & midi::kChannelMask);
        if (message.until > 0) {
            ends.start(channel, message.key, message.until);
        } else {
            std::size_t skipped = 0;
            const auto ended = ends.end(channel, message.key, [&](std::uint64_t end) {
                skipped += end == tick ? 0 : 1;
                return end == tick;
            });
            if (ended == tick && skipped > 0)
                addSkipNotes(track, skipped);
        }
        addNumber(track, message.status, 1);
        addNumber(track, message.key, 1);
        addNumber(track, message.velocity, 1);
    }
    addDelta(track, 0);
    addMetaEvent(track, midi::kEndOfTrack, 0);

    std::string file;
    addChunk(file, "MThd", header);
    addChunk(file, "MTrk", track);
    return file;
}

} // namespace velmora
