#pragma once

#include "base/Clock.h"
#include "sequencer/KeyboardDocument.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequencePlayback.h"

#include <QObject>
#include <QUndoStack>

#include <bitset>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

struct UnsavedSequence;

/// A sequence and its transport: plays the notes on the application's current instrument, through
/// its current temperament, records live keys, and lets them be practised. Main thread only. Times
/// are in steps; at tempo 120 a second is 15.
class SequenceDocument : public QObject, public KeyboardDocument {
    Q_OBJECT

public:
    enum class Mode { Stopped, Playing, Recording };
    enum class SaveOperation { Save, SaveAs };

    /// A document with an empty sequence. `clock` gives the seconds that pass between the calls of
    /// `loop`. Releases the host's live keys.
    explicit SequenceDocument(SequenceHost& host, std::function<double()> clock = getTime);

    /// Reads a Standard MIDI File, keeping the keys of the keyboard's range. A file that cannot be
    /// read leaves the sequence empty, and `errorString` says why. Forgets what could be undone.
    void readFromURL(const std::filesystem::path& path);

    /// What is wrong with the file that could not be read or written, in one sentence; empty when
    /// nothing is.
    const std::string& errorString() const { return errorString_; }

    /// Writes the notes to a file of a type, "MIDI File" or "iMelody", and marks the document as
    /// not modified. "Save As" makes the file the document's own; "Save" refuses to replace one
    /// that holds more than the sequence keeps. False when nothing was written: `errorString` says
    /// why, but for any other type.
    bool saveToURL(const std::filesystem::path& path, const std::string& type,
                   SaveOperation operation);

    /// What there is to keep of the document now.
    UnsavedSequence snapshot() const;

    /// Takes over what was kept of a document that was never saved, as a modified document.
    void recover(const UnsavedSequence& unsaved);

    /// The document's file; empty before it has one, and where it could not be read.
    const std::filesystem::path& path() const { return path_; }

    /// Starts playing, from the selected interval when the position lies outside it; or stops.
    void play();

    /// Starts or ends a recording.
    void record();

    /// The tick of the document's timer, 1024 in a second while it plays or records.
    void loop();

    /// Silences every note that playing has started.
    void stop();

    /// Lets another thread sound the notes of a document that plays, on the clock of `getTime`;
    /// null for none. It must outlive its use here.
    void playAhead(AheadPlayer* player) { playback_.playAhead(player); }

    /// Puts the play position; the view follows when no interval is selected.
    void doScroll(double step);

    /// Puts the play position and leaves the view where it is.
    void setOffset(double step);

    /// Puts it where the user points: a recording without keys does not run on.
    void putPosition(double step);

    /// Go to the chord before or after the position, or put the cursor on the one at it.
    void prevNote();
    void currentNote();
    void nextNote();

    /// Looks anew which keys are wanted at the position and which are held. With `advance` the
    /// position goes on to the next chord once every wanted key, and no other, has been struck.
    void getCurrentNotes(bool advance);

    void midiInput() override;
    int stateOfNote(unsigned key) const override { return playback_.states[key]; }

    /// Selects a time interval; equal steps select none.
    void selectInterval(double start, double end);
    bool intervalSelected() const { return selectionStart_ != selectionEnd_; }
    double getSelectionStart() const { return selectionStart_; }
    double getSelectionEnd() const { return selectionEnd_; }

    const Sequence& getSequence() const { return sequence_; }
    Mode mode() const { return mode_; }
    double getOffset() const { return offset_; }

    /// Cursor of the navigation by notes. Playing leaves a key in it; -1 before the first note.
    int getNote() const { return note_; }

    /// The extent in steps: the end of the last note and 32 more.
    double extent() const { return extent_; }

    /// Sets the extent by the notes; it is 0 without any.
    void measure();

    /// Whether the file that was read held more than the sequence keeps.
    bool isImported() const { return isImported_; }

    /// Beats a minute, above 0.
    double tempo() const { return tempo_; }
    void setTempo(double tempo);

    /// Given to notes that are recorded or drawn.
    unsigned char channel() const { return channel_; }
    void setChannel(unsigned char channel);

    bool snapToGrid() const { return snapToGrid_; }
    void setSnapToGrid(bool snap);

    /// Whether playing goes on from the beginning of the interval, or of the sequence, at its end.
    bool loops() const { return loop_; }
    void setLoop(bool loop);

    SequenceHost& host() const { return host_; }

    class Edit;

    /// Begins a change of the sequence. `notes` names those to be changed: the ones that sound are
    /// silenced, because they would not end where they go.
    [[nodiscard]] Edit edit(std::span<const std::uint64_t> notes = {});

    /// The name of an edit in the menu, as in "Move 3 Notes".
    static QString editText(const char* verb, std::size_t notes);

    /// Swaps notes with the sequence's, which can be undone. `text` names the edit in the menu.
    void perform(std::vector<NoteState> notes, const QString& text);

    /// Lets an edit that a gesture has done already be undone. `before` are its notes as they were.
    void registerDone(std::vector<NoteState> before, const QString& text);

    /// Swaps notes with the sequence's. Registers nothing.
    void swap(std::vector<NoteState>& notes);

    /// Also says, by its clean state, whether the document is modified.
    QUndoStack& undoStack() { return undoStack_; }

    /// Makes what has been recorded so far an edit that can be undone.
    void registerTake();

    /// Whether there are edits or recorded notes that are not saved.
    bool isModified() const { return !undoStack_.isClean() || !taken_.empty(); }

signals:
    /// Notes, the selection, the position or the selected interval have changed.
    void changed();

    /// The keyboard is to be drawn anew, and the roll of the document that it shows. On every 16th
    /// tick, and whenever the keys' states have changed while no clock runs.
    void frame();

    void modeChanged();

    /// The extent has changed.
    void sizeChanged();

    /// That step is to come to the bottom edge of the roll, as far as it can; it may be negative.
    void scrolled(double step);

    /// Tempo, channel, grid or looping have changed.
    void optionsChanged();

private:
    /// How far above the bottom edge of the view the position stands, in steps.
    static constexpr double kRoomBelowPosition = 8.0;

    double positionAt(double time) const;
    double endOfPlaying() const;
    void doPlay(double now);
    void settle();
    void recordUntil(double now);

    /// True when there are keys that it has taken.
    bool doRecord(double seconds);

    /// How a key stood at a moment since the last tick; takes it into account.
    int takeKey(std::size_t key, double until);
    bool recordKey(std::size_t key, double until);
    void setMode(Mode mode);
    void setExtent(double extent);

    SequenceHost& host_;
    std::function<double()> clock_;
    Sequence sequence_;
    SequencePlayback playback_;
    QUndoStack undoStack_;
    std::filesystem::path path_;
    std::string errorString_;

    double tempo_ = 120.0;
    double extent_ = 0.0;
    Mode mode_ = Mode::Stopped;
    unsigned frameCount_ = 0; ///< Ticks.
    double scrollMax_ = 0.0;  ///< How far a recording runs on without keys.
    double dTime_;            ///< When the last tick was.
    double selectionStart_ = 0.0, selectionEnd_ = 0.0;
    double offset_ = 0.0; ///< The play position.
    int note_ = 0;
    unsigned char channel_ = 0;
    bool snapToGrid_ = false;
    bool loop_ = false;
    bool isImported_ = false;
    int edits_ = 0; ///< Under way, one within the other.

    std::bitset<kKeys> heldKeys_; ///< At the last tick of the recording.

    /// What the recording has done since it was last registered: the notes that it has changed,
    /// with the length before, or none for a new one.
    std::map<std::uint64_t, std::optional<double>> taken_;
};

/// Access to the sequence while it is changed: brings playing up to date when it begins, and
/// announces the change when it ends, or when the edit that it is part of does.
class SequenceDocument::Edit {
public:
    Edit(SequenceDocument& document, std::span<const std::uint64_t> notes);
    ~Edit();

    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

    Sequence& operator*() const { return document_.sequence_; }
    Sequence* operator->() const { return &document_.sequence_; }

private:
    SequenceDocument& document_;
};

} // namespace velmora
