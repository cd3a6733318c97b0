#include "sequencer/Sequence.h"

#include "sound/keys.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

bool startsBefore(const Note& a, const Note& b)
{
    return a.start < b.start;
}

} // namespace

std::vector<NoteState> present(const std::vector<Note>& notes)
{
    std::vector<NoteState> states;
    states.reserve(notes.size());
    for (const Note& note : notes)
        states.push_back({note.id, note});
    return states;
}

std::vector<NoteState> absent(const std::vector<Note>& notes)
{
    std::vector<NoteState> states;
    states.reserve(notes.size());
    for (const Note& note : notes)
        states.push_back({note.id, std::nullopt});
    return states;
}

std::uint32_t wholeKey(double key)
{
    return static_cast<std::uint32_t>(std::clamp(key, 0.0, static_cast<double>(kLastKey)));
}

Note* Sequence::find(std::uint64_t id)
{
    const auto entry = index_.find(id);
    return entry == index_.end() ? nullptr : &notes_[entry->second];
}

Note& Sequence::addNote(const Note& note)
{
    notes_.push_back(note);
    Note& stored = notes_.back();
    if (stored.id != 0)
        stored.selected = false;
    else
        stored.id = ++lastId_;
    // A new identity is the highest, so the hint makes this constant time.
    index_.insert_or_assign(index_.end(), stored.id, notes_.size() - 1);
    return stored;
}

void Sequence::erase(std::uint64_t id)
{
    const auto entry = index_.find(id);
    if (entry == index_.end())
        return;
    const std::uint64_t position = entry->second;
    index_.erase(entry);
    for (auto& [other, otherPosition] : index_)
        otherPosition -= otherPosition > position ? 1 : 0;
    notes_.erase(std::next(notes_.begin(), static_cast<std::ptrdiff_t>(position)));
}

void Sequence::erase()
{
    eraseAll(std::exchange(selection_, {}));
}

void Sequence::eraseAll(std::vector<std::uint64_t> ids)
{
    std::sort(ids.begin(), ids.end());
    std::erase_if(notes_, [&](const Note& note) {
        return std::binary_search(ids.begin(), ids.end(), note.id);
    });
    sort();
}

void Sequence::select()
{
    deselect();
    for (Note& note : notes_)
        select(note);
}

bool Sequence::select(unsigned char channel)
{
    selection_.clear();
    for (Note& note : notes_) {
        note.selected = false;
        if (note.channel == channel)
            select(note);
    }
    return !selection_.empty();
}

void Sequence::select(Note& note)
{
    // See docs/decisions.md, 106.
    if (!std::exchange(note.selected, true))
        selection_.push_back(note.id);
}

void Sequence::deselect()
{
    forSelected([](Note& note) { note.selected = false; });
    selection_.clear();
}

void Sequence::deselect(Note& note)
{
    note.selected = false;
    const auto entry = std::find(selection_.begin(), selection_.end(), note.id);
    if (entry != selection_.end())
        selection_.erase(entry);
}

std::vector<Note> Sequence::getSelection() const
{
    std::vector<Note> copies;
    copies.reserve(selection_.size());
    for (const std::uint64_t id : selection_)
        if (const auto entry = index_.find(id); entry != index_.end())
            copies.push_back(notes_[entry->second]);
    return copies;
}

void Sequence::move(double keys, double steps, bool snap)
{
    forSelected([=](Note& note) {
        note.start = note.oldStart + steps;
        // See docs/decisions.md, 105.
        note.key = wholeKey(note.oldKey + keys);
        if (snap)
            note.start = std::floor(note.start);
    });
}

void Sequence::swap(std::vector<NoteState>& states)
{
    std::vector<Note> added;
    std::vector<std::uint64_t> removed;
    for (auto& [id, note] : states) {
        Note* const stored = find(id);
        if (stored != nullptr && note) {
            note->active = stored->active;
            note->playing = stored->playing;
            note->selected = stored->selected;
            std::swap(*stored, *note);
        } else if (stored != nullptr) {
            note = *stored;
            removed.push_back(id);
        } else if (note) {
            note->active = note->playing = false;
            added.push_back(*note);
            note.reset();
        }
    }
    for (const Note& note : added)
        addNote(note);
    if (!added.empty() || !removed.empty())
        deselect();
    eraseAll(std::move(removed));
}

void Sequence::setChannel(unsigned char channel)
{
    forSelected([=](Note& note) { note.channel = channel; });
}

void Sequence::update()
{
    forSelected([](Note& note) {
        note.oldStart = note.start;
        note.oldKey = note.key;
        note.oldLength = note.length;
    });
}

void Sequence::sort()
{
    if (!std::is_sorted(notes_.begin(), notes_.end(), startsBefore))
        // See docs/decisions.md, 104.
        std::sort(notes_.begin(), notes_.end(), startsBefore);

    // Inserting the identities in their own order is much faster than searching for each.
    std::vector<std::pair<std::uint64_t, std::uint64_t>> positions;
    positions.reserve(notes_.size());
    for (const Note& note : notes_)
        positions.emplace_back(note.id, positions.size());
    std::sort(positions.begin(), positions.end());
    index_.clear();
    for (const auto& [id, position] : positions)
        index_.insert_or_assign(index_.end(), id, position);
}

template <class Change> void Sequence::forSelected(Change change)
{
    for (const std::uint64_t id : selection_)
        if (Note* note = find(id))
            change(*note);
}

} // namespace velmora
