#include "midi/MidiFileEvents.h"

#include "base/FormatError.h"
#include "midi/OpenNotes.h"
#include "midi/StandardMidiFile.h"
#include "midi/messages.h"

#include <spdlog/fmt/fmt.h>

#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// Reads the events of a track one by one.
class EventReader {
public:
    EventReader(MidiFileCursor track, FileTrack& result) : track_(track), result_(result)
    {
        result_.events.reserve(track_.left() / 4); // with running status; the length is checked
    }

    /// Reads up to the end-of-track mark. If FormatError is thrown, the events before the error
    /// have been read.
    void read()
    {
        while (track_.left() > 0) {
            const std::uint64_t tick = result_.end += track_.quantity();
            const bool hasStatus = track_.peek() >= midi::kStatusBit;
            if (!hasStatus && status_ == 0)
                throw FormatError::atByte(track_.offset(),
                                          "an event has no status, and there is no running status");
            const std::uint8_t status = hasStatus ? track_.byte() : status_;
            const MidiFileCursor begin = track_;
            const bool ends = skipData(status);
            if (!ends)
                result_.events.push_back(
                    {tick, begin.text(track_.offset() - begin.offset()), status});
            if (ends)
                return;
            // See docs/decisions.md, 122.
            if (status < midi::kFirstSystemStatus)
                status_ = status;
        }
    }

private:
    /// Skips what follows a status. Returns true for the end-of-track mark.
    bool skipData(std::uint8_t status)
    {
        if (status == midi::kMetaEvent) {
            const std::uint8_t type = track_.byte();
            track_.skip(track_.quantity());
            return type == midi::kEndOfTrack;
        }
        if (status == midi::kSystemExclusive || status == midi::kEscape) {
            track_.skip(track_.quantity());
            return false;
        }
        if (status >= midi::kFirstSystemStatus)
            throw FormatError::atByte(
                track_.offset() - 1,
                fmt::format("an event in a file cannot have the status 0x{:02X}", status));
        const int kind = status & midi::kKindMask;
        const bool isShort = kind == midi::kProgramChange || kind == midi::kChannelPressure;
        for (int i = 0; i < (isShort ? 1 : 2); ++i)
            if (const std::uint8_t value = track_.byte(); value >= midi::kStatusBit)
                throw FormatError::atByte(track_.offset() - 1,
                                          fmt::format("expected a data byte, not 0x{:02X}", value));
        return false;
    }

    MidiFileCursor track_;
    FileTrack& result_;
    std::uint8_t status_ = 0; ///< Running status; 0 for none.
};

void addTempoChanges(const FileTrack& track, double ticksPerBeat, std::vector<TempoChange>& changes)
{
    constexpr std::string_view kTempoEvent = "\x51\x03"; // the type and the number of bytes
    for (const FileEvent& event : track.events) {
        if (event.status != midi::kMetaEvent || !event.data.starts_with(kTempoEvent))
            continue;
        std::uint32_t microseconds = 0;
        for (const char byte : event.data.substr(kTempoEvent.size()))
            microseconds = microseconds << 8 | static_cast<std::uint8_t>(byte);
        changes.push_back({static_cast<double>(event.tick) / ticksPerBeat, microseconds});
    }
}

} // namespace

MidiFileEvents readMidiFileEvents(std::span<const std::byte> bytes)
{
    MidiFileCursor file = openMidiFile(bytes);
    MidiFileEvents result{readMidiFileHeader(file), {}, {}, {}};
    std::vector<TempoChange> tempoChanges;
    const auto keepDamage = [&](const FormatError& error) {
        if (!result.damage)
            result.damage = error;
    };
    try {
        while (result.tracks.size() < result.header.tracks) {
            const std::size_t at = file.offset();
            if (file.left() == 0)
                throw FormatError::atByte(at,
                                          fmt::format("the file ends after {} of {} tracks",
                                                      result.tracks.size(), result.header.tracks));
            const MidiFileChunk chunk = readMidiFileChunk(file);
            if (chunk.id == "MTrk") {
                FileTrack& track = result.tracks.emplace_back();
                try {
                    EventReader(chunk.body, track).read();
                } catch (const FormatError& error) {
                    keepDamage(error);
                }
                addTempoChanges(track, result.header.ticksPerBeat, tempoChanges);
            }
            requireWhole(chunk, at);
        }
    } catch (const FormatError& error) {
        if (result.tracks.empty())
            throw;
        keepDamage(error);
    }
    // See docs/decisions.md, 123.
    if (!result.header.hasFrames)
        result.tempoMap = TempoMap(std::move(tempoChanges));
    return result;
}

std::string_view metaData(const FileEvent& event, std::uint8_t type)
{
    std::string_view data = event.data;
    if (event.status != midi::kMetaEvent || data.empty() ||
        static_cast<std::uint8_t>(data.front()) != type)
        return {};
    data.remove_prefix(1);
    // The length takes as many bytes as have their highest bit set, and one more.
    while (!data.empty() && static_cast<std::uint8_t>(data.front()) >= midi::kStatusBit)
        data.remove_prefix(1);
    return data.empty() ? data : data.substr(1);
}

void countInBeats(MidiFileEvents& file)
{
    constexpr double kFineDivision = 9600.0, kMostTicksPerBeat = 0x7FFF;
    const double ticks = file.header.ticksPerBeat;
    const bool isWhole = ticks == std::round(ticks) && ticks <= kMostTicksPerBeat;
    const double division = isWhole ? ticks : kFineDivision;
    const auto convert = [&](std::uint64_t& tick) {
        tick = static_cast<std::uint64_t>(std::round(static_cast<double>(tick) / ticks * division));
    };
    for (FileTrack& track : file.tracks) {
        convert(track.end);
        for (FileEvent& event : track.events)
            convert(event.tick);
    }
    file.header.division = static_cast<std::uint16_t>(division);
    file.header.ticksPerBeat = division;
    file.header.hasFrames = false;
}

bool skipsNotes(const FileEvent& event)
{
    return event.status == midi::kMetaEvent && event.data.size() == kSkipNotes.size() + 3 &&
           static_cast<std::uint8_t>(event.data[0]) == midi::kSequencerSpecific &&
           event.data.substr(2).starts_with(kSkipNotes);
}

std::vector<FileNote> notesOf(const FileTrack& track)
{
    std::vector<FileNote> notes;
    OpenNotes<std::uint32_t> open;
    unsigned skipped = 0;
    for (std::uint32_t i = 0; i < track.events.size(); ++i) {
        const FileEvent& event = track.events[i];
        const int kind = event.status & midi::kKindMask;
        if (skipsNotes(event))
            skipped = static_cast<std::uint8_t>(event.data.back());
        if (kind != midi::kNoteOn && kind != midi::kNoteOff)
            continue;
        const auto channel = static_cast<std::size_t>(event.status & midi::kChannelMask);
        const std::size_t key = static_cast<std::uint8_t>(event.data[0]);
        if (kind == midi::kNoteOn && event.data[1] != 0) {
            open.start(channel, key, static_cast<std::uint32_t>(notes.size()));
            notes.push_back({i, FileNote::kTrackEnd});
            continue;
        }
        if (const auto note = open.end(channel, key, [&](std::uint32_t) { return skipped-- == 0; }))
            notes[*note].off = i;
        skipped = 0;
    }
    return notes;
}

} // namespace velmora
