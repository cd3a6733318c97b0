#include "sequencer/editTime.h"

#include "midi/messages.h"
#include "sequencer/FileEdits.h"
#include "sequencer/MusicalTime.h"

#include <algorithm>
#include <bit>
#include <string>

namespace velmora {

namespace {

std::string dataOf(const Tempo& tempo)
{
    std::string data;
    for (const unsigned shift : {16U, 8U, 0U})
        data += static_cast<char>(tempo.microsecondsPerBeat >> shift & 0xFF);
    return data;
}

std::string dataOf(const KeySignature& signature)
{
    return {static_cast<char>(signature.sharps), static_cast<char>(signature.isMinor ? 1 : 0)};
}

std::string dataOf(const Marker& marker)
{
    return marker.text;
}

/// Returns whether a list in order of time holds an entry.
template <class Entry> bool holds(const std::vector<Entry>& list, const Entry& entry)
{
    const auto first = std::ranges::lower_bound(list, entry.step, {}, &Entry::step);
    const auto last = std::ranges::upper_bound(list, entry.step, {}, &Entry::step);
    return std::find(first, last, entry) != last;
}

/// Returns the first track with a meta event of a type, or the first of all.
std::size_t trackWith(const MidiFileEvents& file, std::uint8_t type)
{
    for (std::size_t track = 0; track < file.tracks.size(); ++track)
        for (const FileEvent& event : file.tracks[track].events)
            if (!metaData(event, type).empty())
                return track;
    return 0;
}

/// Replaces the events of a type that say something else than a list. `entries` is where an event
/// adds its entry.
template <class Entry>
void editList(const MidiFileEvents& file, std::uint8_t type, std::vector<Entry> TimeLists::*entries,
              const std::vector<Entry>& before, const std::vector<Entry>& after, FileEdits& edits)
{
    if (before == after)
        return;
    edits.drop([header = file.header, entries, after](const FileEvent& event) {
        TimeLists said;
        addTimeEvent(event, header, said);
        return std::ranges::any_of(said.*entries,
                                   [&](const Entry& entry) { return !holds(after, entry); });
    });
    const std::size_t track = trackWith(file, type);
    for (const Entry& entry : after)
        if (!holds(before, entry))
            edits.addMeta(track, entry.step, type, dataOf(entry));
}

} // namespace

std::string dataOf(const TimeSignature& signature)
{
    // A click of the metronome is so many of the 24 clocks of a quarter note, which has 8 notes of
    // 1/32.
    const double clocks = signature.beatLength() / kStepsPerBeat * 24.0;
    const int exponent = std::countr_zero(static_cast<unsigned>(signature.unit));
    std::string data;
    for (const int byte : {signature.count, exponent, static_cast<int>(clocks), 8})
        data += static_cast<char>(byte);
    return data;
}

void editTime(MidiFileEvents& file, const MusicalTime& time, FileEdits& edits)
{
    if (file.header.hasFrames && !time.tempos().empty())
        countInBeats(file);
    const MusicalTime before = musicalTimeOf(file);
    editList(file, midi::kTempo, &TimeLists::tempos, before.tempos(), time.tempos(), edits);
    editList(file, midi::kTimeSignature, &TimeLists::timeSignatures, before.timeSignatures(),
             time.timeSignatures(), edits);
    editList(file, midi::kKeySignature, &TimeLists::keySignatures, before.keySignatures(),
             time.keySignatures(), edits);
    editList(file, midi::kMarker, &TimeLists::markers, before.markers(), time.markers(), edits);
}

} // namespace velmora
