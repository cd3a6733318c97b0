// What can be undone in a sequence document.

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velmora {

namespace {

/// One entry of the undo menu. It holds the notes that the edit concerns in the state that the
/// sequence does not have: undoing and redoing swap the two.
class SwapNotes : public QUndoCommand {
public:
    /// The edit has been done.
    SwapNotes(SequenceDocument& document, std::vector<NoteState> before, const QString& text)
        : QUndoCommand(text), document_(document), notes_(std::move(before))
    {
    }

    void redo() override
    {
        if (!std::exchange(isPushed_, true)) // the stack redoes what is pushed onto it
            return;
        document_.swap(notes_);
    }

    void undo() override { document_.swap(notes_); }

private:
    SequenceDocument& document_;
    std::vector<NoteState> notes_;
    bool isPushed_ = false;
};

} // namespace

SequenceDocument::Edit::Edit(SequenceDocument& document, std::span<const std::uint64_t> notes)
    : document_(document)
{
    document.settle();
    for (const std::uint64_t id : notes)
        if (Note* note = document.sequence_.find(id); note != nullptr && note->playing)
            document.playback_.silence(*note);
    document.playback_.sequenceChanged();
    ++document.edits_;
}

SequenceDocument::Edit::~Edit()
{
    document_.playback_.sequenceChanged();
    if (--document_.edits_ == 0)
        emit document_.changed();
}

SequenceDocument::Edit SequenceDocument::edit(std::span<const std::uint64_t> notes)
{
    return {*this, notes};
}

void SequenceDocument::swap(std::vector<NoteState>& notes)
{
    std::vector<std::uint64_t> ids;
    ids.reserve(notes.size());
    for (const NoteState& state : notes)
        ids.push_back(state.id);
    const Edit edit(*this, ids);
    edit->swap(notes);

    // What an undone deletion brings back can lie beyond the end.
    double extent = extent_;
    for (const std::uint64_t id : ids)
        if (const Note* note = edit->find(id))
            extent = std::max(extent, note->start + note->length + kRoomBehindLastNote);
    setExtent(extent);
}

void SequenceDocument::perform(std::vector<NoteState> notes, const QString& text)
{
    registerTake();
    swap(notes);
    registerDone(std::move(notes), text);
}

void SequenceDocument::registerDone(std::vector<NoteState> before, const QString& text)
{
    undoStack_.push(new SwapNotes(*this, std::move(before), text));
}

void SequenceDocument::registerTake()
{
    std::vector<NoteState> before;
    std::size_t added = 0;
    for (const auto& [id, lengthBefore] : std::exchange(taken_, {})) {
        const Note* stored = sequence_.find(id);
        if (stored == nullptr)
            continue;
        NoteState& state = before.emplace_back(NoteState{id, std::nullopt});
        if (lengthBefore) {
            state.note = *stored;
            state.note->length = *lengthBefore;
        } else {
            ++added;
        }
    }
    if (!before.empty())
        registerDone(std::move(before), editText("Record", added));
}

QString SequenceDocument::editText(const char* verb, std::size_t notes)
{
    return tr(verb) + ' ' + (notes == 1 ? tr("1 Note") : tr("%1 Notes").arg(notes));
}

} // namespace velmora
