#include "sequencer/SequenceEditor.h"

#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Width of the part of a note, at its end, that resizes it.
constexpr double kResizePixels = 8.0;

/// A note that is dragged to less than this is deleted, in steps.
/// See docs/decisions.md, 107.
constexpr double kShortestLength = 0.0002;

bool hasMoved(const Note& note)
{
    return note.start != note.oldStart || note.key != note.oldKey;
}

} // namespace

SequenceEditor::SequenceEditor(SequenceDocument& document)
    : document_(document), transport_(document.transport()), recorder_(document.recorder()),
      stepHeight_(getPrefInt("KeyHeight"))
{
}

RollHit rollHit(const Note& note, RollPoint point, int keyHeight)
{
    const double end = note.start + note.length;
    if (note.key != std::trunc(point.key) || point.step < note.start || point.step > end)
        return RollHit::Nothing;
    return point.step > end - kResizePixels / keyHeight ? RollHit::NoteEnd : RollHit::Note;
}

void SequenceEditor::mouseDown(RollPoint point, Qt::KeyboardModifiers modifiers)
{
    transport_.stop();
    document_.registerTake();
    click_ = point;
    hitNote_ = isNewNote_ = false;
    newNote_ = 0;

    {
        const auto edit = document_.edit();
        edit->update();
        for (std::size_t i = edit->notes().size(); i-- > 0;) {
            const RollHit place = rollHit(edit->notes()[i], point, stepHeight_);
            if (place == RollHit::Nothing || edit->isLocked(edit->notes()[i]))
                continue;
            hit(*edit, edit->at(i), place, modifiers);
            if (!modifiers.testFlag(Qt::ShiftModifier) || modifiers.testFlag(Qt::ControlModifier))
                break;
        }
    }
    if (modifiers.testFlag(Qt::ControlModifier)) {
        rightMouseDown(point);
        return;
    }
    if (hitNote_)
        return;
    if (modifiers.testFlag(Qt::AltModifier)) {
        beginBand(point);
        return;
    }

    const double step = snapped(point.step);
    if (getPrefBool("DragSelects")) {
        if (!modifiers.testFlag(Qt::ShiftModifier))
            recorder_.waitAt(step);
        beginBand(point);
        return;
    }
    double start =
        transport_.interval().isEmpty() ? transport_.position() : transport_.interval().start;
    if (!modifiers.testFlag(Qt::ShiftModifier)) {
        recorder_.waitAt(step);
        start = step;
    }
    transport_.selectInterval(start, step);
    transport_.stop();
}

void SequenceEditor::hit(Sequence& sequence, Note& note, RollHit place,
                         Qt::KeyboardModifiers modifiers)
{
    hitNote_ = true;
    grabbedStart_ = note.start;
    if (place == RollHit::NoteEnd)
        newNote_ = note.id;
    // Recording and undoing change notes without committing them.
    note.oldStart = note.start;
    note.oldKey = note.key;
    note.oldLength = note.length;
    if (!modifiers.testFlag(Qt::ControlModifier))
        sound(note);

    if (modifiers.testFlag(Qt::ControlModifier)) {
        if (!note.selected)
            sequence.select(note);
    } else if (!modifiers.testFlag(Qt::ShiftModifier)) {
        sequence.deselect();
        sequence.select(note);
    } else if (note.selected) {
        sequence.deselect(note);
    } else {
        sequence.select(note);
    }
}

void SequenceEditor::rightMouseDown(RollPoint point)
{
    transport_.stop();
    document_.registerTake();
    click_ = point;
    hitNote_ = isNewNote_ = true;

    Note note{.start = snapped(point.step),
              .length = 1.0,
              .oldLength = 1.0,
              .velocity = recorder_.velocity(),
              .channel = recorder_.channel(),
              .key = wholeKey(point.key)};
    note.oldStart = note.start;
    note.oldKey = note.key;
    const auto edit = document_.edit();
    edit->deselect();
    Note& stored = edit->addNote(note);
    edit->select(stored);
    newNote_ = stored.id;
    sound(stored);
}

void SequenceEditor::mouseDragged(RollPoint point)
{
    if (band_) {
        band_->second = point;
    } else if (newNote_ != 0) {
        const auto edit = document_.edit({&newNote_, 1});
        if (Note* note = edit->find(newNote_)) {
            note->length = std::max(recorder_.snappedUp(point.step) - note->start, 0.0);
        }
    } else if (!hitNote_) {
        transport_.selectInterval(transport_.interval().start, snapped(point.step));
    } else {
        dragNotes(point);
        if (const Note* note = sounding_ ? document_.sequence().find(sounding_->id) : nullptr;
            note != nullptr && note->key != sounding_->key)
            sound(*note);
    }
}

void SequenceEditor::dragNotes(RollPoint point)
{
    const double keys = point.key - click_.key, steps = point.step - click_.step;
    if (document_.reading() == Reading::Musical) {
        // The note under the mouse snaps, and the others keep their distance from it.
        move(keys, recorder_.snapped(grabbedStart_ + steps) - grabbedStart_, false);
        return;
    }
    const bool snap = recorder_.snapToGrid();
    move(keys, snap ? std::floor(point.step) - std::floor(click_.step) : steps, snap);
}

void SequenceEditor::mouseUp(RollPoint point, Qt::KeyboardModifiers modifiers)
{
    silence();
    if (band_)
        finishBand(modifiers);
    else if (newNote_ != 0)
        finishLength();
    else if (hitNote_ && (modifiers & (Qt::ControlModifier | Qt::AltModifier)) != 0)
        finishCopy();
    else if (hitNote_)
        finishMove();
    else if (modifiers.testFlag(Qt::ShiftModifier))
        selectUpTo(snapped(point.step));

    document_.edit()->sort();
    document_.updateExtent();
    const double start = transport_.interval().start, end = transport_.interval().end;
    transport_.selectInterval(std::min(start, end), std::max(start, end));
    document_.practice().showKeys();
    emit transport_.frame();
}

void SequenceEditor::finishLength()
{
    const std::uint64_t id = std::exchange(newNote_, 0);
    const auto edit = document_.edit({&id, 1});
    Note* note = edit->find(id);
    if (note == nullptr) // undone during the drag
        return;
    const bool isLong = note->length >= kShortestLength;
    if (isNewNote_ && isLong) {
        note->oldLength = note->length;
        recorder_.setVelocity(note->velocity);
        document_.registerDone(absent({*note}), SequenceDocument::tr("Draw Note"));
    } else if (isNewNote_) {
        edit->deselect(*note);
        edit->erase(id);
    } else if (!isLong) {
        note->length = note->oldLength;
        document_.perform(
            absent({*note}),
            SequenceDocument::editText(
                QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Delete %n Note(s)"), 1));
    } else if (note->length != note->oldLength) {
        Note before = *note;
        before.length = note->oldLength;
        document_.registerDone(
            present({before}),
            SequenceDocument::editText(
                QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Resize %n Note(s)"), 1));
    }
}

void SequenceEditor::finishMove()
{
    std::vector<Note> notes = copy();
    if (std::any_of(notes.begin(), notes.end(), hasMoved)) {
        for (Note& note : notes) {
            note.start = note.oldStart;
            note.key = note.oldKey;
        }
        document_.registerDone(
            present(notes),
            SequenceDocument::editText(
                QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Move %n Note(s)"), notes.size()));
    }
    document_.edit()->update();
}

void SequenceEditor::selectUpTo(double end)
{
    transport_.selectInterval(transport_.interval().start, end);
    const auto edit = document_.edit();
    for (std::size_t i = edit->notes().size(); i-- > 0;)
        if (Note& note = edit->at(i); transport_.position() <= note.start && note.start <= end)
            edit->select(note);
}

void SequenceEditor::movePosition(double step)
{
    transport_.stop();
    document_.registerTake();
    recorder_.waitAt(snapped(step));
    document_.practice().showKeys();
    emit transport_.frame();
}

void SequenceEditor::selectInterval(double one, double other)
{
    transport_.selectInterval(snapped(std::min(one, other)), snapped(std::max(one, other)));
}

void SequenceEditor::setStepHeight(int pixels)
{
    stepHeight_ = pixels;
    recorder_.setGrid(visibleGrid(pixels));
}

double SequenceEditor::snapped(double step) const
{
    return std::max(recorder_.snapped(step), 0.0);
}

} // namespace velmora
