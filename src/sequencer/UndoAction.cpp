#include "sequencer/UndoAction.h"

#include <utility>

namespace velmora {

UndoAction UndoAction::withNotes(std::vector<Note> notes)
{
    UndoAction action;
    action.notes_ = std::move(notes);
    return action;
}

void UndoAction::add(Sequence& sequence) const
{
    for (Note note : notes_) {
        if (sequence.find(note.id) != nullptr)
            continue;
        note.playing = note.active = false;
        sequence.addNote(note);
    }
    sequence.deselect();
    sequence.sort();
}

void UndoAction::remove(Sequence& sequence) const
{
    sequence.erase(notes_);
    sequence.deselect();
}

void UndoAction::move(Sequence& sequence) const
{
    for (const Note& note : notes_)
        sequence.move(note);
    sequence.sort();
}

void UndoAction::unmove(Sequence& sequence) const
{
    for (const Note& note : notes_)
        sequence.unmove(note);
    sequence.sort();
}

void UndoAction::size(Sequence& sequence) const
{
    for (const Note& note : notes_)
        sequence.size(note);
}

void UndoAction::unsize(Sequence& sequence) const
{
    for (const Note& note : notes_)
        sequence.unsize(note);
}

} // namespace velmora
