// What can be undone in a sequence document.

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace velmora {

namespace {

/// One entry of the undo menu. A gesture has done its edit before it is registered: the stack does
/// it again only after it was undone.
class SequenceCommand : public QUndoCommand {
public:
    SequenceCommand(SequenceDocument& document, SequenceDocument::Edit edit, UndoAction action,
                    bool isDone, const QString& text)
        : QUndoCommand(text), document_(document), edit_(edit), action_(std::move(action)),
          isDone_(isDone)
    {
    }

    void redo() override
    {
        if (!std::exchange(isDone_, false))
            (document_.*edit_.redo)(action_);
    }

    void undo() override { (document_.*edit_.undo)(action_); }

private:
    SequenceDocument& document_;
    SequenceDocument::Edit edit_;
    UndoAction action_;
    bool isDone_;
};

} // namespace

Sequence& SequenceDocument::edit(std::span<const std::uint64_t> notes)
{
    settle();
    for (const std::uint64_t id : notes)
        if (Note* note = sequence_.find(id); note != nullptr && note->playing)
            playback_.silence(*note);
    playback_.sequenceChanged();
    return sequence_;
}

void SequenceDocument::apply(void (UndoAction::*change)(Sequence&) const, const UndoAction& action)
{
    std::vector<std::uint64_t> ids;
    ids.reserve(action.notes().size());
    for (const Note& note : action.notes())
        ids.push_back(note.id);
    (action.*change)(edit(ids));

    // What an undone deletion brings back can lie beyond the end.
    const double before = mx_;
    for (const std::uint64_t id : ids)
        if (const Note* note = sequence_.find(id))
            mx_ = std::max(mx_, note->start + note->length + kRoomBehindLastNote);
    if (mx_ != before)
        emit sizeChanged();
    emit changed();
}

void SequenceDocument::addNotes(const UndoAction& action)
{
    apply(&UndoAction::add, action);
}

void SequenceDocument::removeNotes(const UndoAction& action)
{
    apply(&UndoAction::remove, action);
}

void SequenceDocument::moveNotes(const UndoAction& action)
{
    apply(&UndoAction::move, action);
}

void SequenceDocument::unmoveNotes(const UndoAction& action)
{
    apply(&UndoAction::unmove, action);
}

void SequenceDocument::sizeNotes(const UndoAction& action)
{
    apply(&UndoAction::size, action);
}

void SequenceDocument::unsizeNotes(const UndoAction& action)
{
    apply(&UndoAction::unsize, action);
}

void SequenceDocument::perform(Edit edit, UndoAction action, const QString& text)
{
    registerTake();
    undoStack_.push(new SequenceCommand(*this, edit, std::move(action), false, text));
}

void SequenceDocument::registerDone(Edit edit, UndoAction action, const QString& text)
{
    undoStack_.push(new SequenceCommand(*this, edit, std::move(action), true, text));
}

void SequenceDocument::registerTake()
{
    std::vector<Note> added, lengthened;
    for (const auto& [id, lengthBefore] : std::exchange(taken_, {})) {
        const Note* stored = sequence_.find(id);
        if (stored == nullptr)
            continue;
        Note& note = (lengthBefore ? lengthened : added).emplace_back(*stored);
        note.oldLength = lengthBefore.value_or(note.oldLength);
    }
    if (added.empty() && lengthened.empty())
        return;
    undoStack_.beginMacro(editText("Record", added.size()));
    if (!lengthened.empty())
        registerDone(kSize, UndoAction::withNotes(std::move(lengthened)), {});
    if (!added.empty())
        registerDone(kAdd, UndoAction::withNotes(std::move(added)), {});
    undoStack_.endMacro();
}

QString SequenceDocument::editText(const char* verb, std::size_t notes)
{
    return tr(verb) + ' ' + (notes == 1 ? tr("1 Note") : tr("%1 Notes").arg(notes));
}

} // namespace velmora
