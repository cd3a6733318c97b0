#include "sequencer/SequenceDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "platform/writeFile.h"
#include "preferences/Preferences.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SourceFile.h"
#include "sequencer/UnsavedSequence.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <utility>

namespace velmora {

/// One entry of the undo history. It holds the other state of the notes of an edit: the earlier one
/// after the edit or a redo, the later one after an undo.
class SequenceDocument::SwapNotes : public QUndoCommand {
public:
    /// Creates a command for an edit that has already been made.
    SwapNotes(SequenceDocument& document, std::vector<NoteState> before, const QString& text)
        : QUndoCommand(text), document_(document), notes_(std::move(before))
    {
    }

    void redo() override
    {
        if (std::exchange(isPushed_, true)) // the stack calls `redo` when a command is pushed
            document_.swap(notes_);
    }

    void undo() override { document_.swap(notes_); }

private:
    SequenceDocument& document_;
    std::vector<NoteState> notes_;
    bool isPushed_ = false;
};

SequenceDocument::SequenceDocument(SequenceHost& host, Reading reading,
                                   std::function<double()> clock)
    : transport_(host, sequence_, reading, std::move(clock)), recorder_(transport_, sequence_),
      practice_(transport_, sequence_)
{
    connect(&recorder_, &Recorder::ended, this, [this] {
        registerTake();
        emit changed();
    });
    // In the plain reading the keyboard keeps its colours.
    if (reading == Reading::Musical)
        connect(&transport_, &Transport::modeChanged, this, [this] {
            if (transport_.mode() == Transport::Mode::Stopped)
                practice_.showKeys();
        });
    // See docs/decisions.md, 126.
    host.liveKeys().clear();
}

// See docs/decisions.md, 88.
void SequenceDocument::read(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    errorString_.clear();
    damage_.clear();
    path_.clear();
    transport_.stop();
    undoStack_.clear();
    recorder_.endTake();
    isImported_ = false;
    source_.reset();
    const Edit edit(*this, {});
    *edit = {};
    try {
        Sequence sequence;
        if (reading() == Reading::Plain)
            readPlainly(path, sequence);
        else
            readMusically(path, sequence);
        *edit = std::move(sequence);
        path_ = path;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name);
    } catch (const std::bad_alloc&) {
        errorString_ = name + ": too large to be read into memory";
    }
    if (!errorString_.empty())
        logger("sequencer").info("{}", errorString_);
    updateExtent();
    emit transport_.frame();
}

void SequenceDocument::readPlainly(const std::filesystem::path& path, Sequence& sequence)
{
    isImported_ = readSequence(readStandardMidiFile(readFile(path)), getPrefInt("KeyRangeLo"),
                               getPrefInt("KeyRangeHi"), sequence)
                      .isImported;
}

void SequenceDocument::readMusically(const std::filesystem::path& path, Sequence& sequence)
{
    source_ = std::make_shared<SourceFile>(readFile(path), sequence);
    if (const auto& damage = source_->damage()) {
        damage_ = damage->inFile(path.filename().string());
        logger("sequencer").info("{}", damage_);
    }
    isImported_ = !damage_.empty();
}

bool SequenceDocument::save(const std::filesystem::path& path, SequenceFormat format,
                            SaveOperation operation)
{
    errorString_.clear();
    if (operation != SaveOperation::SaveAs && isImported_) {
        // See docs/decisions.md, 87.
        errorString_ = "The source file contains unprocessed MIDI information which cannot be "
                       "overwriten (multichannel, meta events,…). Use the 'Save As…' option "
                       "instead.";
        return false;
    }
    try {
        writeFile(path, source_ && format == SequenceFormat::MidiFile
                            ? source_->write(sequence_)
                            : writeSequence(sequence_, format));
    } catch (const std::length_error& error) {
        errorString_ = toUtf8(path.filename().string()) + " cannot be written: " + error.what();
    } catch (const std::bad_alloc&) {
        errorString_ = toUtf8(path.filename().string()) + " is too large to be written";
    } catch (const std::runtime_error& error) {
        errorString_ = error.what();
    }
    if (!errorString_.empty()) {
        logger("sequencer").info("{}", errorString_);
        return false;
    }
    if (format == SequenceFormat::IMelody && reading() == Reading::Musical)
        return true;
    if (operation == SaveOperation::SaveAs) {
        path_ = path;
        isImported_ = false;
        damage_.clear();
    }
    registerTake();
    undoStack_.setClean();
    return true;
}

UnsavedSequence SequenceDocument::snapshot() const
{
    const auto now = std::chrono::system_clock::now();
    return {path_,       std::chrono::floor<std::chrono::milliseconds>(now),
            isImported_, sequence_.notes(),
            reading(),   source_};
}

void SequenceDocument::recover(const UnsavedSequence& unsaved)
{
    transport_.stop();
    const Edit edit(*this, {});
    *edit = {};
    edit->reserve(unsaved.notes.size());
    for (Note note : unsaved.notes) {
        note.id = 0;
        note.active = note.playing = note.selected = false;
        edit->addNote(note);
    }
    path_ = unsaved.path;
    isImported_ = unsaved.isImported;
    source_ = unsaved.source;
    damage_.clear();
    errorString_.clear();
    recorder_.endTake();
    undoStack_.clear();
    undoStack_.resetClean();
    updateExtent();
}

SequenceDocument::Edit::Edit(SequenceDocument& document, std::span<const std::uint64_t> notes)
    : document_(document)
{
    SequencePlayback& playback = document.transport_.playback();
    document.transport_.settle();
    for (const std::uint64_t id : notes)
        if (Note* note = document.sequence_.find(id); note != nullptr && note->playing)
            playback.silence(*note);
    playback.sequenceChanged();
    ++document.edits_;
}

SequenceDocument::Edit::~Edit()
{
    document_.transport_.playback().sequenceChanged();
    if (--document_.edits_ == 0)
        emit document_.changed();
}

SequenceDocument::Edit SequenceDocument::edit(std::span<const std::uint64_t> notes)
{
    return {*this, notes};
}

// See docs/decisions.md, 108.
void SequenceDocument::updateExtent()
{
    double extent = 0.0;
    for (const Note& note : sequence_.notes())
        extent = std::max(extent, extentOf(note));
    transport_.setExtent(extent);
}

void SequenceDocument::swap(std::vector<NoteState>& notes)
{
    std::vector<std::uint64_t> ids;
    ids.reserve(notes.size());
    for (const NoteState& state : notes)
        ids.push_back(state.id);
    {
        const Edit edit(*this, ids);
        edit->swap(notes);

        // A restored note can lie beyond the end.
        double extent = transport_.extent();
        for (const std::uint64_t id : ids)
            if (const Note* note = edit->find(id))
                extent = std::max(extent, extentOf(*note));
        transport_.setExtent(extent);
    }
    practice_.showKeys(); // other notes may be wanted now
    emit transport_.frame();
}

void SequenceDocument::perform(std::vector<NoteState> notes, const QString& text)
{
    registerTake();
    swap(notes);
    registerDone(std::move(notes), text);
}

void SequenceDocument::registerDone(std::vector<NoteState> before, const QString& text)
{
    undoStack_.push(new SwapNotes(*this, std::move(before), text));
}

void SequenceDocument::registerTake()
{
    std::vector<NoteState> before = recorder_.endTake();
    if (before.empty())
        return;
    const auto added = std::count_if(before.begin(), before.end(),
                                     [](const NoteState& state) { return !state.note; });
    registerDone(std::move(before),
                 editText(QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Record %n Note(s)"),
                          static_cast<std::size_t>(added)));
}

QString SequenceDocument::editText(const char* text, std::size_t notes)
{
    return tr(text, nullptr, static_cast<int>(notes));
}

} // namespace velmora
