// The editor's keyboard and the commands of the Edit menu.

#include "base/Log.h"
#include "preferences/Preferences.h"
#include "sequencer/KeyPosition.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// What Shift adds to a channel.
constexpr int kShiftedChannel = 10;

bool isModifier(int key)
{
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr ||
           (key >= Qt::Key_Super_L && key <= Qt::Key_Hyper_R);
}

/// Helps to diagnose keyboards that report unexpected codes.
void logUnknownKey(const QKeyEvent& event)
{
    const auto scanCode = static_cast<int>(event.nativeScanCode());
    logger("sequencer").debug("case {}:", scanCode != 0 ? scanCode : event.key());
}

} // namespace

void SequenceEditor::keyDown(const QKeyEvent& event)
{
    if (event.isAutoRepeat() || isModifier(event.key()))
        return;
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool command = event.modifiers().testFlag(Qt::ControlModifier);
    if (const auto channel = channelNumber(usCharacter(event)))
        // See docs/decisions.md, 89.
        setChannel(static_cast<unsigned char>(*channel + (shift ? kShiftedChannel : 0)), command);
    else if (!takeNamedKey(event.key(), command))
        logUnknownKey(event);
    emit transport_.frame();
}

bool SequenceEditor::takeNamedKey(int key, bool command)
{
    switch (key) {
    case Qt::Key_Return:
        recorder_.record();
        return true;
    case Qt::Key_Space:
        transport_.play();
        return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        deleteSelection();
        return true;
    case Qt::Key_Escape:
        if (transport_.beatsToCount() > 0)
            recorder_.record(); // ends it
        else
            document_.edit()->deselect();
        return true;
    case Qt::Key_Down:
        transport_.stop();
        if (command)
            transport_.setPosition(0.0);
        else
            document_.practice().prevNote();
        transport_.scrollTo(transport_.position());
        document_.practice().advance();
        return true;
    case Qt::Key_Up:
        transport_.stop();
        if (command) // beyond the end, because the pixels of the roll are taken as steps
            // See docs/decisions.md, 92.
            transport_.setPosition(getPrefInt("KeyHeight") * transport_.extent());
        else
            document_.practice().nextNote();
        transport_.scrollTo(transport_.position());
        document_.practice().advance();
        return true;
    default:
        return false;
    }
}

void SequenceEditor::setChannel(unsigned char channel, bool ofSelection)
{
    recorder_.setChannel(channel);
    if (!ofSelection) {
        document_.edit()->select(channel);
        return;
    }
    std::vector<Note> notes = copy();
    std::erase_if(notes, [=](const Note& note) { return note.channel == channel; });
    if (notes.empty())
        return;
    document_.registerTake();
    document_.edit(document_.sequence().selection())->setChannel(channel);
    document_.registerDone(
        present(notes), SequenceDocument::editText(QT_TRANSLATE_N_NOOP("velmora::SequenceDocument",
                                                                       "Set Channel of %n Note(s)"),
                                                   notes.size()));
}

void SequenceEditor::selectAll()
{
    document_.edit()->select();
}

std::vector<Note> SequenceEditor::copy() const
{
    std::vector<Note> notes = document_.sequence().getSelection();
    std::sort(notes.begin(), notes.end(), [](const Note& a, const Note& b) {
        return std::pair(a.start, a.id) < std::pair(b.start, b.id);
    });
    return notes;
}

void SequenceEditor::deleteSelection()
{
    remove(QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Delete %n Note(s)"));
}

std::vector<Note> SequenceEditor::cut()
{
    return remove(QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Cut %n Note(s)"));
}

std::vector<Note> SequenceEditor::remove(const char* text)
{
    std::vector<Note> notes = copy();
    if (!notes.empty())
        document_.perform(absent(notes), SequenceDocument::editText(text, notes.size()));
    return notes;
}

void SequenceEditor::paste(std::vector<Note> notes)
{
    if (notes.empty())
        return;
    document_.registerTake();
    const auto startsBefore = [](const Note& a, const Note& b) { return a.start < b.start; };
    const double first = std::min_element(notes.begin(), notes.end(), startsBefore)->start;
    const double begin = snapped(transport_.position());
    {
        const auto edit = document_.edit();
        edit->deselect();
        for (Note& note : notes) {
            note.id = note.origin = 0;
            note.start = note.oldStart = begin + (note.start - first);
            note.oldLength = note.length;
            note.oldKey = note.key;
            note.active = note.playing = note.selected = false;
            edit->select(edit->addNote(note));
        }
        edit->sort();
        document_.updateExtent();
    }
    document_.registerDone(
        absent(copy()),
        SequenceDocument::editText(
            QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Paste %n Note(s)"), notes.size()));
    document_.practice().showKeys();
    emit transport_.frame();
}

} // namespace velmora
