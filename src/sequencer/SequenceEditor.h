#pragma once

#include "sequencer/Sequence.h"

#include <QKeyEvent>

#include <cstdint>
#include <vector>

class SequenceDocument;

/// A place in the piano roll: a whole key, and a step.
struct RollPoint {
    double key;
    double step;
};

/// What mouse and keyboard do to a sequence document, in the coordinates of the sequence. Command,
/// in the menus' words, is the control key. Everything that changes notes can be undone.
class SequenceEditor {
public:
    explicit SequenceEditor(SequenceDocument& document) : document_(document) {}

    /// Selects or resizes the note under the mouse, or puts the position and begins an interval.
    void mouseDown(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Draws a new note.
    void rightMouseDown(RollPoint point);

    void mouseDragged(RollPoint point);
    void mouseUp(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Keys count by their position on the keyboard, whatever its layout.
    void keyDown(const QKeyEvent& event);
    void keyUp(const QKeyEvent& event);

    void selectAll();
    void deleteSelection();

    /// The selected notes, in order of their start.
    std::vector<Note> copy() const;
    std::vector<Note> cut();

    /// Adds the notes, the first of them at the play position, and selects them.
    void paste(std::vector<Note> notes);

private:
    SequenceDocument& document_;
    RollPoint click_{};
    bool hitNote_ = false;
    bool isNewNote_ = false;
    std::uint64_t newNote_ = 0; ///< Being resized or drawn; 0 for none.
};
