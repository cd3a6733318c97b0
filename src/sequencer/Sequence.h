#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace velmora {

class Sound;

/// One note. `oldStart`, `oldKey` and `oldLength` are its committed position and size, from which
/// a gesture moves or resizes it. Times are in steps, the sequencer's unit of time.
struct Note {
    std::uint64_t id = 0;   ///< Unique within its sequence; 0 before it is added.
    Sound* sound = nullptr; ///< Always null; see docs/decisions.md, 103.
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

    /// Which note of the document's file it is, counted from 1; 0 for a note that was added.
    std::uint32_t origin = 0;
};

/// A note as it is in another state of its sequence; empty if it does not exist there. Identity 0
/// stands for a note that has not been added yet.
struct NoteState {
    std::uint64_t id;
    std::optional<Note> note;
};

/// Returns states in which the notes exist as given.
std::vector<NoteState> present(const std::vector<Note>& notes);

/// Returns states in which the notes do not exist.
std::vector<NoteState> absent(const std::vector<Note>& notes);

/// Returns the channel of a note as a file has it, 0 to 15.
int channelOf(const Note& note);

/// Returns the key that contains a position across the roll, limited to 0…127.
std::uint32_t wholeKey(double key);

/// The notes of a document, each with a permanent identity, and the selection.
class Sequence {
public:
    /// The notes in order of `start` after `sort`; notes added since then are at the end.
    const std::vector<Note>& notes() const { return notes_; }

    /// The note at an index.
    Note& at(std::size_t index) { return notes_[index]; }

    /// Returns the stored note or null. The pointer is valid until notes are added, erased or
    /// sorted.
    Note* find(std::uint64_t id);
    const Note* find(std::uint64_t id) const;

    /// The identities of the selected notes in the order in which they were selected.
    const std::vector<std::uint64_t>& selection() const { return selection_; }

    void reserve(std::size_t notes) { notes_.reserve(notes); }

    /// Appends a copy. A note with identity 0 receives a new one that was never used before; any
    /// other note keeps its identity and is unselected. The reference is valid until notes are
    /// added, erased or sorted.
    Note& addNote(const Note& note);

    /// Removes one note in O(notes). The selection keeps its identity.
    void erase(std::uint64_t id);

    /// Removes the selected notes, then sorts.
    void erase();

    /// Selects every note.
    void select();

    /// Selects only the notes of a channel. Returns true if there are any.
    bool select(unsigned char channel);

    /// Protects the notes of channels: they are not selected any more, and cannot be.
    static constexpr std::size_t kVoices = 16;
    void lock(const std::bitset<kVoices>& channels);
    bool isLocked(const Note& note) const { return locked_[note.channel % kVoices]; }

    /// Adds a stored note to the selection, unless it is selected already or locked.
    void select(Note& note);

    void deselect();

    /// Clears the `selected` flag of a stored note and removes it from the selection.
    void deselect(Note& note);

    /// Returns copies of the selected notes in the order of the selection.
    std::vector<Note> getSelection() const;

    /// Moves the selected notes from their committed positions. Keys are truncated to whole numbers
    /// and limited to 0…127; `snap` rounds starts down to whole steps.
    void move(double keys, double steps, bool snap);

    /// Puts notes into the given states and stores their previous ones in `states`, so that a
    /// second call undoes the first. A note with identity 0 is added and receives a new one. Then
    /// sorts. Notes that exist before and after keep their flags. If any note is added or removed,
    /// nothing is selected afterwards.
    void swap(std::vector<NoteState>& states);

    /// Puts the selected notes on a channel.
    void setChannel(unsigned char channel);

    /// Commits the positions and lengths of the selected notes.
    void update();

    /// Sorts the notes by `start`. Notes that start together have no defined order.
    void sort();

private:
    template <class Change> void forSelected(Change change);
    void eraseAll(std::vector<std::uint64_t> ids);
    std::size_t positionOf(std::uint64_t id) const;
    void setPosition(std::uint64_t id, std::size_t position);

    static constexpr auto kNowhere = std::numeric_limits<std::size_t>::max();

    std::uint64_t lastId_ = 0;
    std::vector<std::uint64_t> selection_;
    std::vector<std::size_t> positions_; ///< Indices into `notes_` by identity, or `kNowhere`.
    std::vector<Note> notes_;
    std::bitset<kVoices> locked_; ///< By their channels.
};

} // namespace velmora
