#include "sequencer/noteChanges.h"

#include "sequencer/MusicalTime.h"
#include "sound/keys.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace velmora {

namespace {

/// Notes that begin within this time belong to one chord: a sixty-fourth.
constexpr double kChordSpread = 0.5;

/// Neither part of a divided note is shorter.
constexpr double kLeastLength = 0.0625;

constexpr double kLeastVelocity = 1.0 / 127.0;

double endOf(const Note& note)
{
    return note.start + note.length;
}

/// Adds the state of a note that has changed, if it has, with its place and length committed.
void addChanged(std::vector<NoteState>& changes, const Note& before, Note after)
{
    if (after.start == before.start && after.length == before.length && after.key == before.key &&
        after.velocity == before.velocity)
        return;
    after.oldStart = after.start;
    after.oldLength = after.length;
    after.oldKey = after.key;
    changes.push_back({after.id, after});
}

/// Returns the nearest line of the grid.
double lineAt(double step, const Quantisation& grid, const MusicalTime& time)
{
    const Bar bar = time.barAt(step);
    const double pair = 2.0 * grid.unit;
    const double first = bar.start + std::floor((step - bar.start) / pair) * pair;
    const double second = first + pair * grid.swing;
    const double third = first + pair;
    const double end = bar.start + bar.length;
    double nearest = first;
    for (const double line : {second, third, end})
        if (line <= end && std::abs(line - step) < std::abs(nearest - step))
            nearest = line;
    return nearest;
}

/// Returns how far a group can move by keys and steps without leaving the roll.
std::pair<int, double> limited(const std::vector<Note>& notes, int semitones, double steps)
{
    const auto [lowest, highest] = std::ranges::minmax_element(notes, {}, &Note::key);
    const double first = std::ranges::min(notes, {}, &Note::start).start;
    return {std::clamp(semitones, -static_cast<int>(lowest->key),
                       static_cast<int>(kLastKey) - static_cast<int>(highest->key)),
            std::max(steps, -std::max(first, 0.0))};
}

} // namespace

std::vector<NoteState> quantised(const std::vector<Note>& notes, const Quantisation& quantisation,
                                 const MusicalTime& time)
{
    std::vector<NoteState> changes;
    changes.reserve(notes.size());
    for (const Note& note : notes) {
        Note moved = note;
        const double start = lineAt(note.start, quantisation, time);
        moved.start += (start - note.start) * quantisation.strength;
        if (quantisation.movesEnds) {
            const double end = lineAt(endOf(note), quantisation, time);
            const double length = std::max(end - start, quantisation.unit);
            moved.length += (length - note.length) * quantisation.strength;
        }
        addChanged(changes, note, moved);
    }
    return changes;
}

std::vector<NoteState> transposed(const std::vector<Note>& notes, int semitones)
{
    std::vector<NoteState> changes;
    if (notes.empty() || limited(notes, semitones, 0.0).first != semitones)
        return changes;
    changes.reserve(notes.size());
    for (const Note& note : notes) {
        Note moved = note;
        moved.key = static_cast<std::uint32_t>(static_cast<int>(note.key) + semitones);
        addChanged(changes, note, moved);
    }
    return changes;
}

std::vector<NoteState> nudged(const std::vector<Note>& notes, double steps)
{
    std::vector<NoteState> changes;
    if (notes.empty())
        return changes;
    const double possible = limited(notes, 0, steps).second;
    changes.reserve(notes.size());
    for (const Note& note : notes) {
        Note moved = note;
        moved.start += possible;
        addChanged(changes, note, moved);
    }
    return changes;
}

std::vector<NoteState> duplicated(const std::vector<Note>& notes, int semitones, double steps)
{
    std::vector<NoteState> changes;
    if (notes.empty())
        return changes;
    const auto [keys, later] = limited(notes, semitones, steps);
    changes.reserve(notes.size());
    for (const Note& note : notes) {
        Note copy = note;
        copy.id = copy.origin = 0;
        copy.start = copy.oldStart = note.start + later;
        copy.key = copy.oldKey = static_cast<std::uint32_t>(static_cast<int>(note.key) + keys);
        copy.oldLength = copy.length;
        copy.active = copy.playing = copy.selected = false;
        changes.push_back({0, copy});
    }
    return changes;
}

std::vector<NoteState> divided(const std::vector<Note>& notes, double step)
{
    std::vector<NoteState> changes;
    for (const Note& note : notes) {
        if (step - note.start < kLeastLength || endOf(note) - step < kLeastLength)
            continue;
        Note first = note;
        first.length = step - note.start;
        addChanged(changes, note, first);
        NoteState second = duplicated({note}, 0, first.length).front();
        second.note->length = second.note->oldLength = endOf(note) - step;
        changes.push_back(second);
    }
    return changes;
}

std::vector<NoteState> joined(const std::vector<Note>& notes)
{
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::vector<Note>> groups;
    for (const Note& note : notes)
        groups[{note.channel, note.key}].push_back(note);
    std::vector<NoteState> changes;
    for (const auto& [place, group] : groups) {
        if (group.size() < 2)
            continue;
        const Note& first = *std::ranges::min_element(
            group, {}, [](const Note& note) { return std::pair(note.start, note.id); });
        Note whole = first;
        for (const Note& note : group) {
            whole.length = std::max(whole.length, endOf(note) - whole.start);
            if (note.id != first.id)
                changes.push_back({note.id, std::nullopt});
        }
        addChanged(changes, first, whole);
    }
    return changes;
}

std::vector<NoteState> legato(const std::vector<Note>& notes)
{
    std::vector<Note> sorted = notes;
    std::ranges::sort(
        sorted, {}, [](const Note& note) { return std::tuple(note.channel, note.start, note.id); });
    std::vector<NoteState> changes;
    changes.reserve(notes.size());
    for (auto note = sorted.begin(), next = note; note != sorted.end(); ++note) {
        while (next != sorted.end() && next->channel == note->channel &&
               next->start <= note->start + kChordSpread)
            ++next;
        if (next == sorted.end() || next->channel != note->channel)
            continue;
        Note longer = *note;
        longer.length = next->start - note->start;
        addChanged(changes, *note, longer);
    }
    return changes;
}

std::vector<NoteState> revalued(const std::vector<Note>& notes,
                                const std::function<double(const Note&)>& velocity)
{
    std::vector<NoteState> changes;
    changes.reserve(notes.size());
    for (const Note& note : notes) {
        Note other = note;
        other.velocity = static_cast<float>(std::clamp(velocity(note), kLeastVelocity, 1.0));
        addChanged(changes, note, other);
    }
    return changes;
}

} // namespace velmora
