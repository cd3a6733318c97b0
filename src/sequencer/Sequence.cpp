#include "sequencer/Sequence.h"

#include "midi/messages.h"
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

int channelOf(const Note& note)
{
    return static_cast<int>(note.channel % midi::kChannels);
}

std::uint32_t wholeKey(double key)
{
    return static_cast<std::uint32_t>(std::clamp(key, 0.0, static_cast<double>(kLastKey)));
}

Note* Sequence::find(std::uint64_t id)
{
    const std::size_t position = positionOf(id);
    return position == kNowhere ? nullptr : &notes_[position];
}

const Note* Sequence::find(std::uint64_t id) const
{
    const std::size_t position = positionOf(id);
    return position == kNowhere ? nullptr : &notes_[position];
}

Note& Sequence::addNote(const Note& note)
{
    notes_.push_back(note);
    Note& stored = notes_.back();
    if (stored.id != 0)
        stored.selected = false;
    else
        stored.id = ++lastId_;
    setPosition(stored.id, notes_.size() - 1);
    return stored;
}

std::size_t Sequence::positionOf(std::uint64_t id) const
{
    return id < positions_.size() ? positions_[id] : kNowhere;
}

void Sequence::setPosition(std::uint64_t id, std::size_t position)
{
    if (id >= positions_.size())
        positions_.resize(id + 1, kNowhere);
    positions_[id] = position;
}

void Sequence::erase(std::uint64_t id)
{
    const std::size_t position = positionOf(id);
    if (position == kNowhere)
        return;
    notes_.erase(std::next(notes_.begin(), static_cast<std::ptrdiff_t>(position)));
    positions_[id] = kNowhere;
    for (std::size_t i = position; i < notes_.size(); ++i)
        positions_[notes_[i].id] = i;
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
    if (!isLocked(note) && !std::exchange(note.selected, true))
        selection_.push_back(note.id);
}

void Sequence::lock(const std::bitset<kVoices>& channels)
{
    locked_ = channels;
    for (Note& note : notes_)
        if (note.selected && isLocked(note))
            deselect(note);
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
        if (const std::size_t position = positionOf(id); position != kNowhere)
            copies.push_back(notes_[position]);
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
    std::vector<NoteState*> added;
    std::vector<std::uint64_t> removed;
    for (NoteState& state : states) {
        auto& [id, note] = state;
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
            added.push_back(&state);
        }
    }
    for (NoteState* const state : added) {
        Note& note = addNote(*state->note);
        note.active = note.playing = note.selected = false;
        *state = {note.id, std::nullopt};
    }
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

    std::ranges::fill(positions_, kNowhere);
    for (std::size_t i = 0; i < notes_.size(); ++i)
        positions_[notes_[i].id] = i;
}

template <class Change> void Sequence::forSelected(Change change)
{
    for (const std::uint64_t id : selection_)
        if (Note* note = find(id))
            change(*note);
}

} // namespace velmora
