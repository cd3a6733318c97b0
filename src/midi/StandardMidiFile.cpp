#include "midi/StandardMidiFile.h"

#include "base/FormatError.h"
#include "midi/MidiFileHeader.h"
#include "midi/OpenNotes.h"
#include "midi/messages.h"

#include <spdlog/fmt/fmt.h>

#include <string_view>
#include <utility>

namespace velmora {

namespace {

/// A note that has started.
struct OpenNote {
    std::uint64_t tick;
    std::uint32_t event; ///< Index in its track. Tracks have fewer than 2³² bytes and events.
};

/// Reads tracks one by one and collects their tempo events.
class TrackReader {
public:
    explicit TrackReader(double ticksPerBeat) : ticksPerBeat_(ticksPerBeat) {}

    std::vector<MidiEvent> read(MidiFileCursor track)
    {
        // A note takes about eight bytes. The length of the track has been checked.
        events_.reserve(track.left() / 8);
        tick_ = 0;
        status_ = 0;
        skippedNotes_ = 0;
        bool ended = false;
        while (!ended && track.left() > 0) {
            tick_ += track.quantity();
            const std::uint8_t first = track.peek();
            if (first >= midi::kFirstSystemStatus)
                ended = readSystemEvent(track);
            else
                readChannelEvent(track);
        }
        open_.endAll([this](const OpenNote& note) { endNote(note); });
        return std::exchange(events_, {});
    }

    std::vector<TempoChange> takeTempoChanges() { return std::move(tempoChanges_); }

private:
    double beats() const { return static_cast<double>(tick_) / ticksPerBeat_; }

    void addOther() { events_.push_back({beats(), 0.0F, MidiEvent::Kind::Other, 0, 0, 0}); }

    void endNote(const OpenNote& note)
    {
        events_[note.event].duration =
            static_cast<float>(static_cast<double>(tick_ - note.tick) / ticksPerBeat_);
    }

    static std::uint8_t dataByte(MidiFileCursor& track)
    {
        const std::uint8_t value = track.byte();
        if (value >= midi::kStatusBit)
            throw FormatError::atByte(track.offset() - 1,
                                      fmt::format("expected a data byte, not 0x{:02X}", value));
        return value;
    }

    void readChannelEvent(MidiFileCursor& track)
    {
        // Meta and system exclusive events leave the running status: see docs/decisions.md, 122.
        if (track.peek() >= midi::kStatusBit)
            status_ = track.byte();
        else if (status_ == 0)
            throw FormatError::atByte(track.offset(),
                                      "an event has no status, and there is no running status");
        const std::uint8_t data = dataByte(track);
        const auto channel = static_cast<std::uint8_t>(status_ & midi::kChannelMask);
        switch (status_ & midi::kKindMask) {
        case midi::kNoteOff:
            dataByte(track);
            readNoteOff(channel, data);
            break;
        case midi::kNoteOn:
            if (const std::uint8_t velocity = dataByte(track)) {
                open_.start(channel, data, {tick_, static_cast<std::uint32_t>(events_.size())});
                events_.push_back({beats(), 0.0F, MidiEvent::Kind::Note, channel, data, velocity});
            } else {
                readNoteOff(channel, data);
            }
            break;
        case midi::kProgramChange:
        case midi::kChannelPressure:
            addOther();
            break;
        default:
            dataByte(track);
            addOther();
        }
    }

    void readNoteOff(std::uint8_t channel, std::uint8_t key)
    {
        const auto note =
            open_.end(channel, key, [this](const OpenNote&) { return skippedNotes_-- == 0; });
        skippedNotes_ = 0;
        if (note)
            endNote(*note);
    }

    /// Reads a meta or system exclusive event. Returns true for the end-of-track mark.
    bool readSystemEvent(MidiFileCursor& track)
    {
        const std::size_t at = track.offset();
        const std::uint8_t status = track.byte();
        if (status == midi::kMetaEvent)
            return readMetaEvent(track, at);
        if (status != midi::kSystemExclusive && status != midi::kEscape)
            throw FormatError::atByte(
                at, fmt::format("an event in a file cannot have the status 0x{:02X}", status));
        track.skip(track.quantity());
        addOther();
        return false;
    }

    bool readMetaEvent(MidiFileCursor& track, std::size_t at)
    {
        const std::uint8_t type = track.byte();
        const std::uint32_t length = track.quantity();
        MidiFileCursor body = track.part(length, "");
        if (type == midi::kEndOfTrack)
            return true;
        if (type == midi::kSequencerSpecific && length == kSkipNotes.size() + 1 &&
            body.text(kSkipNotes.size()) == kSkipNotes) {
            body.skip(kSkipNotes.size());
            skippedNotes_ = body.byte();
            return false;
        }
        if (type == midi::kTempo) {
            if (length != 3)
                throw FormatError::atByte(
                    at, fmt::format("a tempo event has {} bytes instead of 3", length));
            tempoChanges_.push_back({beats(), body.number(3)});
        }
        addOther();
        return false;
    }

    double ticksPerBeat_;
    std::vector<TempoChange> tempoChanges_;
    std::vector<MidiEvent> events_;
    OpenNotes<OpenNote> open_;
    std::uint64_t tick_ = 0;
    std::uint8_t status_ = 0;   ///< Running status; 0 for none.
    unsigned skippedNotes_ = 0; ///< How many notes the next note-off skips.
};

} // namespace

StandardMidiFile readStandardMidiFile(std::span<const std::byte> bytes)
{
    MidiFileCursor file = openMidiFile(bytes);
    const MidiFileHeader header = readMidiFileHeader(file);
    TrackReader reader(header.ticksPerBeat);
    StandardMidiFile result;
    while (result.tracks.size() < header.tracks) {
        if (file.left() == 0)
            throw FormatError::atByte(file.offset(),
                                      fmt::format("the file ends after {} of {} tracks",
                                                  result.tracks.size(), header.tracks));
        const std::size_t at = file.offset();
        const MidiFileChunk chunk = readMidiFileChunk(file);
        requireWhole(chunk, at);
        if (chunk.id == "MTrk")
            result.tracks.push_back(reader.read(chunk.body));
    }
    // See docs/decisions.md, 123.
    if (!header.hasFrames)
        result.tempoMap = TempoMap(reader.takeTempoChanges());
    return result;
}

} // namespace velmora
