#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

class Sound;

/// One note. `oldStart`, `oldKey` and `oldLength` are its committed position and size, from which
/// a gesture moves or resizes it. Times are in steps, the sequencer's unit of time.
struct Note {
    std::uint64_t id = 0;   ///< Within its sequence; 0 before it is added.
    Sound* sound = nullptr; ///< Always null: notes are played by key.
    double start = 0.0;     ///< Onset.
    double length = 0.0;    ///< The note ends at `start + length`.
    double oldLength = 0.0;
    float velocity = 0.0F;     ///< 0 to 1.
    std::uint32_t channel = 0; ///< MIDI channel.
    std::uint32_t key = 0;     ///< MIDI key, 0 to 127.
    bool active = false;       ///< Under the play position.
    bool playing = false;      ///< Started on the instrument and not yet stopped.
    bool selected = false;
    double oldStart = 0.0;
    std::uint32_t oldKey = 0;
};

/// A note as it is in another state of its sequence; empty if that state does not have it.
struct NoteState {
    std::uint64_t id;
    std::optional<Note> note;
};

/// The state in which these notes are as the copies show them.
std::vector<NoteState> present(const std::vector<Note>& notes);

/// The state in which none of these notes exists.
std::vector<NoteState> absent(const std::vector<Note>& notes);

/// The key that a position across the roll lies in; the first or the last one where it lies beyond.
std::uint32_t wholeKey(double key);

/// The notes of a document, each with an identity for life, and which of them are selected.
class Sequence {
public:
    /// In order of `start` after `sort`; notes added since then stand at the end.
    const std::vector<Note>& notes() const { return notes_; }

    /// The note at a position, for the flags and the gestures of a document.
    Note& at(std::size_t position) { return notes_[position]; }

    /// The stored note, or null. Holds until notes are added, erased or sorted.
    Note* find(std::uint64_t id);

    /// Identities in the order in which they were selected.
    const std::vector<std::uint64_t>& selection() const { return selection_; }

    /// Makes room for so many notes in all.
    void reserve(std::size_t notes) { notes_.reserve(notes); }

    /// Appends a copy. An identity of 0 becomes the next one that was never handed out; another is
    /// kept and arrives unselected. The stored note holds until notes are added, erased or sorted.
    Note& addNote(const Note& note);

    /// Removes one note in O(notes). The selection still names it.
    void erase(std::uint64_t id);

    /// Removes the selected notes, then sorts.
    void erase();

    void select();

    /// Selects the notes of a channel and no others; whether there are any.
    bool select(unsigned char channel);

    /// Adds a stored note to the selection; one that is in it already is named twice.
    void select(Note& note);

    void deselect();

    /// Clears the flag of a stored note and its first mention in the selection, if there is one.
    void deselect(Note& note);

    /// Copies in the order of the selection.
    std::vector<Note> getSelection() const;

    /// Moves the selected notes from their committed positions. Keys are cut off to whole ones and
    /// stay within 0 to 127; with `snap` a start goes down to its whole step.
    void move(double keys, double steps, bool snap);

    /// Exchanges these notes for the sequence's own, so that swapping again undoes it, then sorts.
    /// Whether a note sounds or is selected stays with the sequence; if notes come or go, nothing
    /// is selected afterwards.
    void swap(std::vector<NoteState>& states);

    /// Puts the selected notes on a channel.
    void channel(unsigned char channel);

    /// Commits position and size of the selected notes.
    void update();

    /// Orders the notes by `start`. Notes that start together have no defined order.
    void sort();

private:
    template <class Change> void forSelected(Change change);
    void eraseAll(std::vector<std::uint64_t> ids);

    std::uint64_t lastId_ = 0;
    std::vector<std::uint64_t> selection_;
    std::map<std::uint64_t, std::uint64_t> index_; ///< Identity to position in `notes_`.
    std::vector<Note> notes_;
};

} // namespace velmora
