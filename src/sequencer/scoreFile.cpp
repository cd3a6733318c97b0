#include "sequencer/scoreFile.h"

#include "base/File.h"
#include "base/OpenFile.h"
#include "base/Text.h"
#include "midi/MidiTrack.h"
#include "midi/messages.h"
#include "notation/readMusicXml.h"
#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <exception>
#include <span>
#include <string_view>
#include <vector>

namespace velmora {

namespace {

/// Whole numbers of ticks for tuplets of three, five, seven and nine down to sixty-fourth notes.
constexpr std::uint16_t kScoreTicks = 10080;

/// How much of a file is searched for the beginning of a score.
constexpr std::size_t kBeginning = 8192;

/// The channel of percussion in General MIDI.
constexpr std::size_t kPercussion = 9;

std::uint64_t tickOf(double quarters)
{
    return static_cast<std::uint64_t>(std::llround(std::max(quarters, 0.0) * kScoreTicks));
}

/// The events of a track in any order.
class TrackEvents {
public:
    /// Orders of the events of a tick: notes end before others begin.
    enum Order { Ends, Says, Starts };

    void addMeta(std::uint64_t tick, std::uint8_t type, std::string data)
    {
        events_.push_back({tick, Says, type, std::move(data), {}});
    }

    void addMessage(std::uint64_t tick, Order order, std::array<std::uint8_t, 3> message)
    {
        events_.push_back({tick, order, 0, {}, message});
    }

    /// Returns the track's chunk.
    std::string write()
    {
        std::ranges::stable_sort(events_, [](const Event& a, const Event& b) {
            return a.tick != b.tick ? a.tick < b.tick : a.order < b.order;
        });
        MidiTrack track;
        for (const Event& event : events_) {
            const auto [status, first, second] = event.message;
            if (status == 0)
                track.addMetaEvent(event.tick, event.type, event.data);
            else if ((status & midi::kKindMask) == midi::kProgramChange)
                track.addMessage(event.tick, {status, first});
            else
                track.addMessage(event.tick, {status, first, second});
        }
        return track.end(events_.empty() ? 0 : events_.back().tick);
    }

private:
    struct Event {
        std::uint64_t tick;
        Order order;
        std::uint8_t type; ///< Of a meta event.
        std::string data;
        std::array<std::uint8_t, 3> message; ///< Empty for a meta event.
    };

    std::vector<Event> events_;
};

char byteOf(int value)
{
    return static_cast<char>(value);
}

/// Returns the track of what concerns all parts.
std::string commonTrack(const Piece& piece)
{
    TrackEvents events;
    if (!piece.title.empty())
        events.addMeta(0, midi::kTrackName, piece.title);
    for (const Piece::TimeSignature& time : piece.timeSignatures) {
        const int exponent = std::countr_zero(static_cast<unsigned>(time.unit));
        // A click of the metronome for each beat, and eight thirty-second notes in a quarter note.
        events.addMeta(tickOf(time.start), midi::kTimeSignature,
                       {byteOf(time.beats), byteOf(exponent), byteOf(96 / time.unit), 8});
    }
    for (const Piece::KeySignature& key : piece.keySignatures)
        events.addMeta(tickOf(key.start), midi::kKeySignature,
                       {byteOf(key.fifths), byteOf(key.isMinor ? 1 : 0)});
    for (const Piece::Tempo& tempo : piece.tempos) {
        const auto microseconds = static_cast<int>(
            std::clamp(std::round(60e6 / tempo.quartersPerMinute), 1.0, 16777215.0));
        events.addMeta(
            tickOf(tempo.start), midi::kTempo,
            {byteOf(microseconds >> 16), byteOf(microseconds >> 8), byteOf(microseconds)});
    }
    return events.write();
}

std::string partTrack(const Piece::Part& part, std::uint8_t channel)
{
    const auto status = [channel](std::uint8_t kind) {
        return static_cast<std::uint8_t>(kind | channel);
    };
    TrackEvents events;
    if (!part.name.empty())
        events.addMeta(0, midi::kTrackName, part.name);
    if (part.program && !part.isPercussion)
        events.addMessage(
            0, TrackEvents::Says,
            {status(midi::kProgramChange), static_cast<std::uint8_t>(*part.program), 0});
    for (const Piece::Lyric& lyric : part.lyrics)
        events.addMeta(tickOf(lyric.start), midi::kLyric, lyric.text);
    for (const Piece::Note& note : part.notes) {
        const std::uint64_t start = tickOf(note.start);
        const std::uint64_t end = std::max(tickOf(note.start + note.length), start + 1);
        const auto key = static_cast<std::uint8_t>(note.key);
        events.addMessage(start, TrackEvents::Starts,
                          {status(midi::kNoteOn), key, midiVelocity(note.velocity)});
        events.addMessage(end, TrackEvents::Ends, {status(midi::kNoteOff), key, 64});
    }
    return events.write();
}

} // namespace

bool isReadableScore(const std::filesystem::path& path)
{
    const std::string extension = lowerCase(path.extension().string());
    if (extension == ".musicxml" || extension == ".mxl")
        return true;
    if (extension != ".xml")
        return false;
    std::string beginning(kBeginning, '\0');
    try {
        OpenFile(path).read(0, std::as_writable_bytes(std::span(beginning)));
    } catch (const std::exception&) {
        return false; // whoever opens the file says why
    }
    std::erase(beginning, '\0'); // as in the encoding of two bytes
    return beginning.find("<score-partwise") != std::string::npos ||
           beginning.find("<score-timewise") != std::string::npos;
}

std::string midiFileOf(const Piece& piece)
{
    std::string bytes = MidiTrack::header(1, piece.parts.size() + 1, kScoreTicks);
    bytes += commonTrack(piece);
    std::size_t melodic = 0;
    for (const Piece::Part& part : piece.parts) {
        std::size_t channel = kPercussion;
        if (!part.isPercussion) {
            channel = melodic++ % (midi::kChannels - 1);
            channel += channel >= kPercussion ? 1 : 0;
        }
        bytes += partTrack(part, static_cast<std::uint8_t>(channel));
    }
    return bytes;
}

std::vector<std::byte> midiBytesOf(const std::filesystem::path& path)
{
    std::vector<std::byte> bytes = readFile(path);
    if (!isReadableScore(path))
        return bytes;
    const std::string midi =
        midiFileOf(readMusicXml({reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
    const auto midiBytes = std::as_bytes(std::span(midi));
    return {midiBytes.begin(), midiBytes.end()};
}

} // namespace velmora
