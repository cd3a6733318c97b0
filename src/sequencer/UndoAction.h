#pragma once

#include "sequencer/Sequence.h"

#include <vector>

namespace velmora {

/// Whole copies of the notes that an edit concerns, to do it to a sequence again or to undo it.
class UndoAction {
public:
    static UndoAction withNotes(std::vector<Note> notes);

    const std::vector<Note>& notes() const { return notes_; }

    /// Adds the notes under their identities, none of them sounding; those that the sequence holds
    /// are passed over. Deselects all, like `remove`.
    void add(Sequence& sequence) const;
    void remove(Sequence& sequence) const;

    /// Puts the notes at the copies' key and start, or at their old ones.
    void move(Sequence& sequence) const;
    void unmove(Sequence& sequence) const;

    /// Gives the notes the copies' length, or their old one.
    void size(Sequence& sequence) const;
    void unsize(Sequence& sequence) const;

private:
    std::vector<Note> notes_;
};

} // namespace velmora
