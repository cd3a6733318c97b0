#pragma once

#include "sequencer/Sequence.h"

#include <vector>

namespace velmora {

class SequenceDocument;

/// Shows what a change of notes would do, without an entry in the undo history. The notes are put
/// back when the preview ends. Nothing may be added to the history in the meantime.
class NotePreview {
public:
    /// The document must outlive the preview.
    explicit NotePreview(SequenceDocument& document) : document_(document) {}
    ~NotePreview() { takeBack(); }

    NotePreview(const NotePreview&) = delete;
    NotePreview& operator=(const NotePreview&) = delete;

    /// Replaces the change that is shown. `changes` refer to the notes as they were before.
    void show(std::vector<NoteState> changes);

    void takeBack();

private:
    void swap();

    SequenceDocument& document_;
    std::vector<NoteState> states_; ///< The notes as they were; empty if nothing is shown.
};

} // namespace velmora
