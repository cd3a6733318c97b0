#pragma once

#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace velmora {

/// An editor with the gestures of a hand.
class SequenceEditorTest : public SequenceTest {
protected:
    using Notes = std::map<std::uint64_t, std::tuple<unsigned, double, double, unsigned>>;

    /// The key, start, length and channel of each note by its identity.
    Notes notes()
    {
        Notes result;
        for (const Note& note : document_.sequence().notes()) {
            result[note.id] = {note.key, note.start, note.length, note.channel};
            EXPECT_EQ(document_.edit()->find(note.id), &note);
            EXPECT_EQ(std::ranges::count(selection(), note.id), note.selected ? 1 : 0);
        }
        EXPECT_EQ(document_.sequence().getSelection().size(), selection().size());
        EXPECT_EQ(result.size(), document_.sequence().notes().size()) << "identities are unique";
        return result;
    }

    const std::vector<std::uint64_t>& selection() const { return document_.sequence().selection(); }

    void drag(RollPoint from, RollPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        editor_.mouseDown(from, modifiers);
        if (from.key != to.key || from.step != to.step)
            editor_.mouseDragged(to);
        editor_.mouseUp(to, modifiers);
    }

    using SequenceTest::click;
    void click(RollPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        drag(at, at, modifiers);
    }

    void rightDrag(RollPoint from, double to)
    {
        editor_.rightMouseDown(from);
        if (from.step != to)
            editor_.mouseDragged({from.key, to});
        editor_.mouseUp({from.key, to}, Qt::NoModifier);
    }

    void type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, unsigned scanCode = 0)
    {
        editor_.keyDown({QEvent::KeyPress, key, modifiers, scanCode, 0, 0});
    }

    QString undoText() { return document_.undoStack().undoText(); }
    void undo() { document_.undoStack().undo(); }

    SequenceEditor editor_{document_};
};

} // namespace velmora
