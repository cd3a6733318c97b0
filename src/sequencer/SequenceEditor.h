#pragma once

#include "sequencer/Sequence.h"

#include <QKeyEvent>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

class Recorder;
enum class Grid : std::uint8_t;
class SequenceDocument;
class Transport;
struct Quantisation;

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

    /// Ends a note that sounds because it is pressed.
    ~SequenceEditor() { silence(); }

    SequenceEditor(const SequenceEditor&) = delete;
    SequenceEditor& operator=(const SequenceEditor&) = delete;

    SequenceDocument& document() const { return document_; }

    /// Selects the note under the mouse. A drag then resizes it if the press hit its end, and
    /// otherwise moves the selection; if it ends with Command or Alt, the selection is copied there
    /// instead. If there is no note, moves the position and begins an interval; with Shift, extends
    /// the interval; with Alt, begins a rubber band. If the preference "DragSelects" is set, it
    /// moves the position and begins a rubber band. With Command, draws a note. The note that is
    /// pressed or drawn sounds until the release if the preference "SoundNotes" is set, but not in
    /// the plain reading.
    void mouseDown(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Draws a new note.
    void rightMouseDown(RollPoint point);

    /// Begins a rubber band. At the release it selects the notes that it touches, and with Shift
    /// keeps those that were selected.
    void beginBand(RollPoint point);

    /// The corners of the rubber band, in the order in which they were set; nothing without one.
    const std::optional<std::pair<RollPoint, RollPoint>>& band() const { return band_; }

    /// True while a drag moves notes.
    bool isMoving() const { return hitNote_ && newNote_ == 0; }

    /// Continue and end the gesture of any button.
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

    /// Sets the height of a step in pixels. It decides where the end of a note is grabbed, and to
    /// which lines of the grid notes and times snap if snapping is on.
    void setStepHeight(int pixels);

    void selectAll();
    void deleteSelection();

    /// Selects only the note that comes next in time after the selected ones or, if none is
    /// selected, after the play position; or the one before them. A chord is visited from its
    /// lowest note. Does nothing at the end.
    void selectNeighbour(Direction direction);

    /// Moves the selected notes by semitones and steps. If one of them reaches the edge of the
    /// roll, all of them stop there. With the grid switched on, the first of them moves to the next
    /// line instead, and in the plain reading all of them move to whole steps.
    void moveSelection(int semitones, int steps);

    /// Lengthens the selected notes, except those that would have no length any more. With the grid
    /// switched on, each of them ends at the next line instead, but not in the plain reading.
    void resizeSelection(int steps);

    /// Selects the notes for which `isWanted` returns true, besides those that are selected already
    /// or instead of them.
    void select(const std::function<bool(const Note&)>& isWanted, Qt::KeyboardModifiers modifiers);

    /// Returns the selected notes, or all of them if none is selected.
    std::vector<Note> chosen() const;

    /// Moves the chosen notes to a grid.
    void quantise(const Quantisation& quantisation);

    /// Moves the selected notes by semitones, all of them or none.
    void transpose(int semitones);

    /// Moves the selected notes by steps, past the grid.
    void nudge(double steps);

    /// Repeats the selected notes after themselves: after the selected interval if they begin in
    /// it, and otherwise on the next beat.
    void duplicate();

    /// Divides the chosen notes that sound at the play position.
    void divide();

    /// Join the selected notes of each key, or let each of them last until the next.
    void join();
    void connect();

    /// Makes the selected notes louder, or softer if `difference` is negative. The loudest
    /// velocity is 1.
    void changeVelocity(double difference);

    /// Makes the note at a point louder or softer, and with it every selected note if it is one of
    /// them.
    void changeVelocityAt(RollPoint point, double difference);

    /// Gives notes the velocity that a function returns for each.
    void setVelocity(const std::vector<Note>& notes,
                     const std::function<double(const Note&)>& velocity);

    /// Returns the selected notes in order of their start.
    std::vector<Note> copy() const;
    std::vector<Note> cut();

    /// Adds copies of the notes, the first of them at the play position, and selects them.
    void paste(std::vector<Note> notes);

private:
    void hit(Sequence& sequence, Note& note, RollHit place, Qt::KeyboardModifiers modifiers);
    void move(double keys, double steps, bool snap);

    /// Returns how far a time moves by `steps`: to the next line if notes snap.
    double onGrid(double time, int steps) const;

    void dragNotes(RollPoint point);
    void beginChange();
    void endChange();
    void finishLength();
    void finishMove();
    void finishCopy();
    void finishBand(Qt::KeyboardModifiers modifiers);
    void selectUpTo(double end);
    void sound(const Note& note);
    void silence();
    double snapped(double step) const;

    bool takeNamedKey(int key, bool command);
    void setChannel(unsigned char channel, bool ofSelection);
    std::vector<Note> remove(const char* text);
    std::vector<std::uint64_t> change(std::vector<NoteState> changes, const char* text);
    void copyBy(int semitones, double steps);

    /// Selects the notes with these identities. Those that do not exist are left out.
    void selectOnly(const std::vector<std::uint64_t>& ids);

    SequenceDocument& document_;
    Transport& transport_;
    Recorder& recorder_;
    RollPoint click_{};         ///< The point of the last press.
    double grabbedStart_ = 0.0; ///< The start of the note that it hit.
    bool hitNote_ = false;      ///< True if the last press hit or created a note.
    bool isNewNote_ = false;    ///< True if the drag draws a new note.
    std::uint64_t newNote_ = 0; ///< The note that is being resized or drawn; 0 if none is.
    int stepHeight_;            ///< In pixels.
    std::optional<std::pair<RollPoint, RollPoint>> band_;
    std::optional<Note> sounding_; ///< The note that sounds because it is pressed.
};

} // namespace velmora
