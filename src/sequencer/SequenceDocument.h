#pragma once

#include "base/Clock.h"
#include "sequencer/Controllers.h"
#include "sequencer/Practice.h"
#include "sequencer/PracticeSession.h"
#include "sequencer/Recorder.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/Transport.h"
#include "sequencer/Voices.h"

#include <QObject>
#include <QUndoStack>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

class SourceFile;
struct UnsavedSequence;

/// A sequence with its file and its undo history, and what plays, records and practises it. Main
/// thread only, unless it is created and used on a single other thread.
class SequenceDocument : public QObject {
    Q_OBJECT

public:
    enum class SaveOperation { Save, SaveAs };

    /// Creates a document with an empty sequence. `clock` returns the time in seconds. Marks every
    /// live key of the host as released: see docs/decisions.md, 126.
    explicit SequenceDocument(SequenceHost& host, Reading reading = Reading::Musical,
                              std::function<double()> clock = getTime);

    Reading reading() const { return transport_.reading(); }

    const Sequence& sequence() const { return sequence_; }

    /// The tempos, signatures and markers of the piece.
    const MusicalTime& time() const { return transport_.time(); }

    /// Replaces them, as an edit that can be undone. `text` names it in the menu. Does nothing if
    /// they are the same.
    void setTime(MusicalTime time, const QString& text);

    Transport& transport() { return transport_; }
    const Transport& transport() const { return transport_; }
    Recorder& recorder() { return recorder_; }
    const Recorder& recorder() const { return recorder_; }
    Practice& practice() { return practice_; }
    const Practice& practice() const { return practice_; }
    PracticeSession& practiceSession() { return practiceSession_; }
    const PracticeSession& practiceSession() const { return practiceSession_; }

    /// Reads a Standard MIDI File, or a score in MusicXML, which has no file of its own afterwards.
    /// If the file cannot be read, the sequence is empty and `errorString` says why. Clears the
    /// undo history.
    ///
    /// The musical reading keeps everything that the file says, and reads a damaged file as far as
    /// it can be read; `damage` then says what is wrong. The plain reading keeps the notes on the
    /// keyboard's keys.
    void read(const std::filesystem::path& path);

    /// Writes the document to a file and marks it as unmodified. "Save As" makes the file the
    /// document's own; "Save" refuses to replace a file that holds more than the document keeps.
    /// Returns false if nothing was written, and `errorString` says why. In the musical reading an
    /// iMelody file is an export: the document stays as modified as it was, and keeps its file.
    bool save(const std::filesystem::path& path, SequenceFormat format, SaveOperation operation);

    /// The document's file; empty if there is none or if it could not be read.
    const std::filesystem::path& path() const { return path_; }

    /// Why the last read or write failed, in one sentence that names the file; empty if it did not.
    const std::string& errorString() const { return errorString_; }

    /// Why the file was read only in part, in one sentence that names it; empty if it was read
    /// whole.
    const std::string& damage() const { return damage_; }

    /// True if the file that was read held more than the document keeps.
    bool isImported() const { return isImported_; }

    /// The file from which the document was opened, or an empty one; null in the plain reading,
    /// which keeps nothing but notes.
    const SourceFile* source() const { return source_.get(); }

    /// The voices of the piece, by their channels.
    const Voices& voices() const { return voices_; }

    /// Changes names and sounds of voices, as an edit that can be undone. `text` names it in the
    /// menu.
    void setVoices(const Voices& voices, const QString& text);

    /// Changes what is never saved: which voices are muted, solo or locked, and whether they play
    /// programs of their own.
    void mixVoices(const Voices& voices);

    /// Lets the channels of the host sound as the voices of this document, as playing does.
    void useVoices();

    /// Lets live keys sound as the voice that is recorded, from now on, or as the instrument
    /// itself.
    void setLive(bool isLive);

    /// The current state of the document, to be kept in case of a crash.
    UnsavedSequence snapshot() const;

    /// Restores a document that was never saved. It is modified afterwards.
    void recover(const UnsavedSequence& unsaved);

    class Edit;

    /// Begins a change of the sequence. Silences those of `notes` that sound, because a note that
    /// moves while it sounds might never end.
    [[nodiscard]] Edit edit(std::span<const std::uint64_t> notes = {});

    /// Sets the transport's extent to 32 steps after the last note, or to 0 without notes.
    void updateExtent();

    /// Returns the name of an edit in the menu. `text` is "Move %n Note(s)" and the like, in the
    /// form that has to be translated.
    static QString editText(const char* text, std::size_t notes);

    /// The pedals, the wheel and the other controllers of the piece; none in the plain reading.
    const Controllers& controllers() const { return controllers_; }

    /// Changes them as an edit that can be undone. `text` names it in the menu.
    void setControllers(Controllers controllers, const QString& text);

    /// Puts notes into the given states, as an edit that can be undone. `text` names it in the
    /// menu. Returns the identities of those of the notes that exist afterwards.
    std::vector<std::uint64_t> perform(std::vector<NoteState> notes, const QString& text);

    /// Adds an edit that has already been made to the undo history. `before` holds its notes as
    /// they were.
    void registerDone(std::vector<NoteState> before, const QString& text);

    /// Adds what has been recorded since the last call to the undo history.
    void registerTake();

    /// Puts one of the recorder's takes into the sequence in place of the one that is there, as an
    /// edit that can be undone.
    void chooseTake(std::size_t chosen);

    /// Which of the recorder's takes is in the sequence; nothing if none is.
    std::optional<std::size_t> chosenTake() const;

    QUndoStack& undoStack() { return undoStack_; }

    /// True if there are edits or recorded notes that are not saved.
    bool isModified() const { return !undoStack_.isClean() || recorder_.hasTake(); }

signals:
    /// Notes, the selection or the time of the piece have changed.
    void changed();

    /// Something about a voice has changed.
    void voicesChanged();

    /// The channels of the host sound as the voices of this document, not as those of another one.
    void voicesUsed();

private:
    class SwapNotes;

    void takeVoices(const Voices& voices);

    void useLiveSound();

    /// The programs of the voices: how each that changes begins, and what it changes to.
    ProgramChanges programs() const;

    /// Read a file into an empty sequence, or throw FormatError.
    void readPlainly(const std::filesystem::path& path, Sequence& sequence);
    void readMusically(const std::filesystem::path& path, Sequence& sequence);

    /// Puts notes into the given states and stores their previous ones in `notes`, without an entry
    /// in the undo history.
    void swap(std::vector<NoteState>& notes);

    /// Forgets the file, its time and its damage.
    void forgetFile();

    /// The controllers as they would be if none of the recorder's takes had been recorded.
    Controllers controllersWithoutTakes() const;

    void pushControllers(Controllers controllers, const QString& text);
    void registerNotes(std::vector<NoteState> before);

    Sequence sequence_;
    Controllers controllers_;
    Controllers controllersBeforeTakes_; ///< Those before the present or last recording.
    Transport transport_;
    Recorder recorder_;
    PracticeSession practiceSession_;
    Practice practice_;
    QUndoStack undoStack_;
    Voices voices_;
    std::filesystem::path path_;
    std::string errorString_, damage_;
    bool isImported_ = false;
    bool isLive_ = false;                      ///< Live keys sound as the voice that is recorded.
    std::shared_ptr<const SourceFile> source_; ///< Null in the plain reading.
    int edits_ = 0;                            ///< Number of edits in progress; they can be nested.
};

/// Access to the sequence during a change: brings playback up to date at the beginning, and
/// announces the change once at the end of the outermost edit.
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
