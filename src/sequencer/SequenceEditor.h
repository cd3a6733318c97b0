#pragma once

#include "sequencer/Sequence.h"

#include <QKeyEvent>

#include <cstdint>
#include <vector>

namespace velmora {

class Recorder;
class SequenceDocument;
class Transport;

/// A point in the piano roll.
struct RollPoint {
    double key;
    double step;
};

/// What a press on a point of the piano roll hits.
enum class RollHit { Nothing, Note, NoteEnd };

/// Returns which part of a note a press hits. `NoteEnd` is its last eight pixels, which resize it;
/// `Note` is the rest of it. `keyHeight` is the height of a step in pixels.
RollHit rollHit(const Note& note, RollPoint point, int keyHeight);

/// Edits a sequence document with the mouse and the keyboard, in keys and steps. The Command
/// modifier is the Control key. Every change of notes can be undone.
class SequenceEditor {
public:
    enum class Direction { Forward, Backward };

    /// The document must outlive it.
    explicit SequenceEditor(SequenceDocument& document);

    /// Selects the note under the mouse. A drag then resizes it if the press hit its end, and
    /// otherwise moves the selection. If there is no note, moves the position and begins an
    /// interval; with Shift, extends the interval. With Command, draws a note.
    void mouseDown(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Draws a new note.
    void rightMouseDown(RollPoint point);

    /// Continue and end the gesture of either button.
    void mouseDragged(RollPoint point);
    void mouseUp(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Handles a key that was pressed. Digits are identified by their position, whatever the
    /// keyboard layout.
    void keyDown(const QKeyEvent& event);

    /// Moves the play position; a recording waits there for the next key. With the grid
    /// switched on, it moves to a whole step.
    void movePosition(double step);

    /// Selects the interval between two steps in either order.
    void selectInterval(double one, double other);

    void selectAll();
    void deleteSelection();

    /// Selects only the note that comes next in time after the selected ones or, if none is
    /// selected, after the play position; or the one before them. A chord is visited from its
    /// lowest note. Does nothing at the end.
    void selectNeighbour(Direction direction);

    /// Moves the selected notes by semitones and steps. If one of them reaches the edge of the
    /// roll, all of them stop there. With the grid switched on, they move to whole steps.
    void moveSelection(int semitones, int steps);

    /// Lengthens the selected notes, except those that would have no length any more.
    void resizeSelection(int steps);

    /// Returns the selected notes in order of their start.
    std::vector<Note> copy() const;
    std::vector<Note> cut();

    /// Adds copies of the notes, the first of them at the play position, and selects them.
    void paste(std::vector<Note> notes);

private:
    void hit(Sequence& sequence, Note& note, RollHit place, Qt::KeyboardModifiers modifiers);
    void move(double keys, double steps, bool snap);
    void beginChange();
    void endChange();
    void finishLength();
    void finishMove();
    void selectUpTo(double end);
    double snapped(double step) const;

    bool takeNamedKey(int key, bool command);
    void setChannel(unsigned char channel, bool ofSelection);
    std::vector<Note> remove(const char* text);

    SequenceDocument& document_;
    Transport& transport_;
    Recorder& recorder_;
    RollPoint click_{};         ///< The point of the last press.
    bool hitNote_ = false;      ///< True if the last press hit or created a note.
    bool isNewNote_ = false;    ///< True if the drag draws a new note.
    std::uint64_t newNote_ = 0; ///< The note that is being resized or drawn; 0 if none is.
};

} // namespace velmora
