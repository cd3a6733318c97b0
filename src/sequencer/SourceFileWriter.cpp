#include "sequencer/SourceFileWriter.h"

#include "midi/MidiTrack.h"
#include "midi/OpenNotes.h"
#include "midi/StandardMidiFile.h"
#include "midi/StandardMidiFileWriter.h"
#include "midi/messages.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace velmora {

namespace {

/// The orders of the events of a tick: edited notes end before the file's events and start after
/// them, so that a note that touches another one does not overlap it. Added events come before the
/// file's notes, to which they apply.
constexpr int kEnds = 0, kAdded = 1, kOfFile = 2, kStarts = 3;

/// The greatest division of a beat and of a frame that a file can have.
constexpr unsigned kMostTicksPerBeat = 0x7FFF, kMostTicksPerFrame = 0xFF;

/// Edited notes may be this far from the file's ticks before those are divided.
constexpr double kNearEnough = 0.05;

std::size_t channelAndKey(std::uint8_t status, char key)
{
    return static_cast<std::size_t>((status & midi::kChannelMask) << 7 | (key & 0x7F));
}

bool isNoteEvent(const FileEvent& event)
{
    const int kind = event.status & midi::kKindMask;
    return kind == midi::kNoteOn || kind == midi::kNoteOff;
}

} // namespace

std::uint64_t endOf(const FileNote& note, const FileTrack& track)
{
    return note.off == FileNote::kTrackEnd ? track.end : track.events[note.off].tick;
}

SourceFileWriter::SourceFileWriter(MidiFileEvents file, const Sequence& sequence,
                                   const FileEdits& edits)
    : file_(std::move(file)), edits_(edits), fates_(file_.tracks.size()),
      added_(file_.tracks.size())
{
    for (const FileTrack& track : file_.tracks)
        notes_.push_back(notesOf(track));
    findFates(sequence);
}

void SourceFileWriter::findFates(const Sequence& sequence)
{
    std::size_t count = 0;
    for (const auto& notes : notes_)
        count += notes.size();
    // A note that was given to another voice moves to the track of that one.
    std::vector<std::uint8_t> channels(1);
    channels.reserve(count + 1);
    for (std::size_t track = 0; track < notes_.size(); ++track)
        for (const FileNote& note : notes_[track])
            channels.push_back(file_.tracks[track].events[note.on].status & midi::kChannelMask);
    std::vector<const Note*> byOrigin(count + 1);
    std::vector<const Note*> added, edited;
    for (const Note& note : sequence.notes()) {
        if (note.origin > 0 && note.origin <= count && byOrigin[note.origin] == nullptr &&
            note.channel % midi::kChannels == channels[note.origin])
            byOrigin[note.origin] = &note;
        else
            added.push_back(&note);
    }
    std::size_t origin = 0;
    for (std::size_t track = 0; track < notes_.size(); ++track) {
        for (const FileNote& note : notes_[track]) {
            Fate& fate = fates_[track].emplace_back(Fate{byOrigin[++origin]});
            const FileTrack& events = file_.tracks[track];
            // A note without length is not in the sequence.
            fate.isKept = fate.note != nullptr ? isUnchanged(*fate.note, events, note)
                                               : endOf(note, events) == events.events[note.on].tick;
            if (fate.note != nullptr && !fate.isKept)
                edited.push_back(fate.note);
        }
    }
    edited.insert(edited.end(), added.begin(), added.end());
    divideTicks(edited);
    for (const Note* note : added)
        added_[trackFor(*note)].push_back(note);
}

void SourceFileWriter::divideTicks(const std::vector<const Note*>& edited)
{
    const auto isOnATick = [this](double step) {
        const double tick = tickAt(step);
        if (!(tick <= kLastBeat * file_.header.ticksPerBeat))
            throw std::length_error("a note or a change is later than a file can hold");
        return std::abs(tick - std::round(tick)) < kNearEnough;
    };
    bool isExact = true;
    for (const Note* note : edited)
        for (const double step : {note->start, note->start + note->length})
            isExact = isOnATick(step) && isExact;
    for (const FileEdits::Added& event : edits_.added())
        isExact = isOnATick(event.step) && isExact;
    if (isExact)
        return;
    std::uint16_t& division = file_.header.division;
    const unsigned most = file_.header.hasFrames ? kMostTicksPerFrame : kMostTicksPerBeat;
    const unsigned ticks = division & most;
    const auto enough = static_cast<unsigned>(std::ceil(kTicksPerBeat / file_.header.ticksPerBeat));
    factor_ = std::max(1U, std::min(enough, most / ticks));
    division = static_cast<std::uint16_t>((division & ~most) | ticks * factor_);
}

double SourceFileWriter::tickAt(double step) const
{
    return std::max(step, 0.0) / kStepsPerBeat * file_.header.ticksPerBeat *
           static_cast<double>(factor_);
}

bool SourceFileWriter::isUnchanged(const Note& note, const FileTrack& track,
                                   const FileNote& fileNote) const
{
    const FileEvent& on = track.events[fileNote.on];
    const auto isAt = [this](double step, std::uint64_t tick) {
        return std::abs(tickAt(step) - static_cast<double>(tick)) < kNearEnough;
    };
    return note.key == static_cast<std::uint32_t>(on.data[0]) &&
           note.channel % midi::kChannels == (on.status & midi::kChannelMask) &&
           midiVelocity(note.velocity) == static_cast<std::uint8_t>(on.data[1]) &&
           isAt(note.start, on.tick) && isAt(note.start + note.length, endOf(fileNote, track));
}

std::size_t SourceFileWriter::trackFor(const Note& note) const
{
    std::optional<std::size_t> withNotes;
    for (std::size_t track = 0; track < notes_.size(); ++track) {
        const auto& events = file_.tracks[track].events;
        if (file_.tracks[track].channel == note.channel % midi::kChannels)
            return track;
        if (std::any_of(notes_[track].begin(), notes_[track].end(), [&](const FileNote& other) {
                return (events[other.on].status & midi::kChannelMask) ==
                       note.channel % midi::kChannels;
            }))
            return track;
        if (!withNotes && !notes_[track].empty())
            withNotes = track;
    }
    return withNotes.value_or(notes_.size() - 1);
}

std::string SourceFileWriter::write() const
{
    std::string bytes =
        MidiTrack::header(file_.header.format, file_.tracks.size(), file_.header.division);
    for (std::size_t track = 0; track < file_.tracks.size(); ++track)
        bytes += writeTrack(track);
    return bytes;
}

std::string SourceFileWriter::writeTrack(std::size_t index) const
{
    std::vector<Event> events;
    events.reserve(file_.tracks[index].events.size());
    const std::uint64_t end =
        std::max({addEditedNotes(index, events), addOtherEvents(index, events),
                  file_.tracks[index].end * factor_});
    addFileEvents(index, end, events);
    std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::pair(a.tick, a.order) < std::pair(b.tick, b.order);
    });
    return bytesOf(events, end);
}

/// Returns the tick of the last end.
std::uint64_t SourceFileWriter::addEditedNotes(std::size_t index, std::vector<Event>& events) const
{
    const FileTrack& track = file_.tracks[index];
    std::uint32_t id = 0;
    for (std::size_t i = 0; i < notes_[index].size(); ++i) {
        ++id;
        const Fate& fate = fates_[index][i];
        if (fate.note == nullptr || fate.isKept)
            continue;
        const FileNote& note = notes_[index][i];
        const bool hasRelease = note.off != FileNote::kTrackEnd &&
                                (track.events[note.off].status & midi::kKindMask) == midi::kNoteOff;
        addNote(*fate.note, hasRelease ? track.events[note.off].data[1] : '\0', id, events);
    }
    for (const Note* note : added_[index])
        addNote(*note, 0, ++id, events);
    return events.empty() ? 0 : std::ranges::max_element(events, {}, &Event::tick)->tick;
}

void SourceFileWriter::addNote(const Note& note, char releaseVelocity, std::uint32_t id,
                               std::vector<Event>& events) const
{
    const auto channel = static_cast<int>(note.channel % midi::kChannels);
    const char key = static_cast<char>(note.key & 0x7F);
    const auto begin = static_cast<std::uint64_t>(std::round(tickAt(note.start)));
    const auto end = static_cast<std::uint64_t>(std::round(tickAt(note.start + note.length)));
    const auto on = static_cast<std::uint8_t>(midi::kNoteOn | channel);
    const auto off = static_cast<std::uint8_t>(midi::kNoteOff | channel);
    const auto velocity = static_cast<char>(midiVelocity(note.velocity));
    events.push_back({begin, kStarts, id, on, {key, velocity}, {}});
    events.push_back({std::max(end, begin + 1), kEnds, id, off, {key, releaseVelocity}, {}});
}

/// Returns the tick of the last one.
std::uint64_t SourceFileWriter::addOtherEvents(std::size_t index, std::vector<Event>& events) const
{
    std::uint64_t last = 0;
    for (const FileEdits::Added& event : edits_.added()) {
        if (event.track != index)
            continue;
        const auto tick = static_cast<std::uint64_t>(std::round(tickAt(event.step)));
        events.push_back({tick, kAdded, 0, event.status, {}, event.data});
        last = std::max(last, tick);
    }
    return last;
}

void SourceFileWriter::addFileEvents(std::size_t index, std::uint64_t end,
                                     std::vector<Event>& events) const
{
    const FileTrack& track = file_.tracks[index];
    const auto& notes = notes_[index];
    // Which note each event starts or ends, and whether it is still to be written.
    std::vector<std::uint32_t> noteOf(track.events.size());
    std::vector<bool> isGone(track.events.size());
    for (std::uint32_t i = 0; i < notes.size(); ++i) {
        for (const std::uint32_t event : {notes[i].on, notes[i].off}) {
            if (event == FileNote::kTrackEnd)
                continue;
            noteOf[event] = i + 1;
            isGone[event] = !fates_[index][i].isKept;
        }
    }
    for (std::size_t i = 0; i < track.events.size(); ++i) {
        const FileEvent& event = track.events[i];
        if (isGone[i] || skipsNotes(event) || (!isNoteEvent(event) && edits_.drops(event)))
            continue;
        Event& added = events.emplace_back(
            Event{event.tick * factor_, kOfFile, noteOf[i], event.status, {}, event.data});
        if (isNoteEvent(event))
            added.message = {event.data[0], event.data[1]};
    }
    if (end == track.end * factor_)
        return;
    // Notes that ended with the track must not become longer with it.
    for (std::uint32_t i = 0; i < notes.size(); ++i) {
        if (notes[i].off != FileNote::kTrackEnd || !fates_[index][i].isKept)
            continue;
        const FileEvent& on = track.events[notes[i].on];
        const int off = midi::kNoteOff | (on.status & midi::kChannelMask);
        events.push_back({track.end * factor_,
                          kOfFile,
                          i + 1,
                          static_cast<std::uint8_t>(off),
                          {on.data[0], 0},
                          {}});
    }
}

std::string SourceFileWriter::bytesOf(const std::vector<Event>& events, std::uint64_t end)
{
    MidiTrack track;
    OpenNotes<std::uint32_t> open;
    std::array<std::uint32_t, std::size_t{16} * 128> counts{}; // of the notes that are open
    for (const Event& event : events) {
        const int kind = event.status & midi::kKindMask;
        if (kind != midi::kNoteOn && kind != midi::kNoteOff) {
            track.addEvent(event.tick, event.status, event.data);
            continue;
        }
        const auto channel = static_cast<std::size_t>(event.status & midi::kChannelMask);
        const std::size_t key = static_cast<std::uint8_t>(event.message[0]);
        std::uint32_t& count = counts[channelAndKey(event.status, event.message[0])];
        if (kind == midi::kNoteOn && event.message[1] != 0) {
            open.start(channel, key, event.note);
            ++count;
        } else if (event.note == 0 && count > 0) {
            continue; // ended nothing, but would end a note now
        } else if (event.note != 0) {
            std::size_t skipped = 0;
            open.end(channel, key, [&](std::uint32_t note) {
                skipped += note == event.note ? 0 : 1;
                return note == event.note;
            });
            --count;
            if (skipped > 0)
                track.addMetaEvent(event.tick, midi::kSequencerSpecific,
                                   std::string(kSkipNotes) + static_cast<char>(skipped));
        }
        track.addEvent(event.tick, event.status,
                       std::string_view(event.message.data(), event.message.size()));
    }
    return track.end(end);
}

} // namespace velmora
