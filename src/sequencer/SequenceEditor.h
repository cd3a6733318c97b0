#pragma once

#include "sequencer/Sequence.h"

#include <QKeyEvent>

#include <cstdint>
#include <map>
#include <vector>

namespace velmora {

class Recorder;
class SequenceDocument;
class Transport;

/// A place in the piano roll: a whole key, and a step.
struct RollPoint {
    double key;
    double step;
};

/// What a press on a point of the piano roll takes hold of.
enum class RollHit { Nothing, Note, NoteEnd };

/// Whether a press there takes hold of the note, and whether of its last eight pixels, by which it
/// is resized, where a step is so many pixels high.
RollHit rollHit(const Note& note, RollPoint point, int keyHeight);

/// What mouse and keyboard do to a sequence document, in the coordinates of the sequence. Command,
/// the modifier, is the control key. Everything that changes notes can be undone.
class SequenceEditor {
public:
    /// The document must outlive it.
    explicit SequenceEditor(SequenceDocument& document);

    /// Selects a note to be moved, or resized by its last pixels. Beside the notes, puts the
    /// position and begins an interval; with Shift extends the interval. With Command, draws.
    void mouseDown(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Draws a new note.
    void rightMouseDown(RollPoint point);

    /// These two go on with the gesture of either button.
    void mouseDragged(RollPoint point);
    void mouseUp(RollPoint point, Qt::KeyboardModifiers modifiers);

    /// Keys count by their position on the keyboard, whatever its layout.
    void keyDown(const QKeyEvent& event);
    void keyUp(const QKeyEvent& event);

    /// Lets go of the keys that are pressed, whose release another window will get.
    void releaseKeys();

    void selectAll();
    void deleteSelection();

    /// The selected notes in order of their start.
    std::vector<Note> copy() const;
    std::vector<Note> cut();

    /// Adds copies of the notes, the first of them at the play position, and selects them.
    void paste(std::vector<Note> notes);

private:
    void hit(Sequence& sequence, Note& note, RollHit place, Qt::KeyboardModifiers modifiers);
    void finishLength();
    void finishMove();
    void selectUpTo(double end);
    double snapped(double step) const;

    bool takeNamedKey(int key, bool command);
    void isomorph(int number);
    void release(int number);
    void setChannel(unsigned char channel, bool ofSelection);
    std::vector<Note> remove(const char* verb);

    SequenceDocument& document_;
    Transport& transport_;
    Recorder& recorder_;
    RollPoint click_{};             ///< Where the last press was.
    bool hitNote_ = false;          ///< It hit a note, or made one.
    bool isNewNote_ = false;        ///< The drag draws a new note.
    std::uint64_t newNote_ = 0;     ///< Being resized or drawn; 0 for none.
    std::map<char, int> isomorphs_; ///< The numbers of the pressed keys of the isomorphic layout.
};

} // namespace velmora
