#include "sequencer/SequenceDocument.h"

#include "base/File.h"
#include "base/FormatError.h"
#include "base/Log.h"
#include "base/Text.h"
#include "platform/writeFile.h"
#include "preferences/Preferences.h"
#include "sequencer/LiveKeys.h"
#include "sequencer/SourceFile.h"
#include "sequencer/SwapCommand.h"
#include "sequencer/UnsavedSequence.h"
#include "sequencer/scoreFile.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <utility>

namespace velmora {

namespace {

/// Turns the times of a note into those that the plain reading gives it in a file.
void layOutInSeconds(Note& note, const MusicalTime& time)
{
    const double start = time.secondsAt(note.start);
    note.length = (time.secondsAt(note.start + note.length) - start) * kStepsPerFileSecond;
    note.start = start * kStepsPerFileSecond;
    note.oldStart = note.start;
    note.oldLength = note.length;
}

} // namespace

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
      practiceSession_(transport_, sequence_), practice_(transport_, sequence_, practiceSession_)
{
    connect(&recorder_, &Recorder::ended, this, [this] {
        registerTake();
        emit changed();
    });
    connect(this, &SequenceDocument::changed, &practiceSession_, &PracticeSession::seek);
    transport_.playback().setControllers(controllers_);
    connect(&transport_, &Transport::modeChanged, this, [this] {
        if (transport_.mode() == Transport::Mode::Recording)
            controllersBeforeTakes_ = controllers_;
    });
    // In the plain reading the keyboard keeps its colours.
    if (reading == Reading::Musical)
        connect(&transport_, &Transport::modeChanged, this, [this] {
            if (transport_.mode() == Transport::Mode::Stopped)
                practice_.showKeys();
        });
    connect(&transport_, &Transport::modeChanged, this, [this] {
        if (transport_.mode() != Transport::Mode::Stopped)
            useVoices();
    });
    connect(&recorder_, &Recorder::optionsChanged, this, &SequenceDocument::useLiveSound);
    connect(this, &SequenceDocument::voicesChanged, this, &SequenceDocument::useLiveSound);
    forgetFile();
    // See docs/decisions.md, 126.
    host.liveKeys().clear();
}

// See docs/decisions.md, 88.
void SequenceDocument::read(const std::filesystem::path& path)
{
    const std::string name = path.filename().string();
    errorString_.clear();
    transport_.stop();
    undoStack_.clear();
    recorder_.endTake();
    recorder_.forgetTakes();
    const Edit edit(*this, {});
    forgetFile();
    *edit = {};
    try {
        Sequence sequence;
        if (reading() == Reading::Plain)
            readPlainly(path, sequence);
        else
            readMusically(path, sequence);
        *edit = std::move(sequence);
        if (!isReadableScore(path))
            path_ = path;
    } catch (const FormatError& error) {
        errorString_ = error.inFile(name);
    } catch (const std::bad_alloc&) {
        errorString_ = name + ": too large to be read into memory";
    } catch (const std::length_error& error) {
        errorString_ = name + ": " + error.what();
    }
    if (!errorString_.empty())
        logger("sequencer").info("{}", errorString_);
    updateExtent();
    emit transport_.frame();
}

void SequenceDocument::forgetFile()
{
    path_.clear();
    damage_.clear();
    isImported_ = false;
    source_ = reading() == Reading::Musical ? std::make_shared<SourceFile>() : nullptr;
    transport_.setTime({});
    takeVoices(source_ ? source_->voices() : Voices());
    controllers_.clear();
}

void SequenceDocument::readPlainly(const std::filesystem::path& path, Sequence& sequence)
{
    isImported_ = readSequence(readStandardMidiFile(midiBytesOf(path)), getPrefInt("KeyRangeLo"),
                               getPrefInt("KeyRangeHi"), sequence)
                      .isImported;
}

void SequenceDocument::readMusically(const std::filesystem::path& path, Sequence& sequence)
{
    source_ = std::make_shared<SourceFile>(midiBytesOf(path), sequence);
    transport_.setTime(source_->time());
    takeVoices(source_->voices());
    controllers_ = source_->controllers();
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
        errorString_ = reading() == Reading::Plain
                           ? "The source file contains unprocessed MIDI information which cannot "
                             "be overwriten (multichannel, meta events,…). Use the 'Save As…' "
                             "option instead."
                           : "The file is damaged, and only a part of it could be read. To keep "
                             "what may still be in it, save the piece under another name.";
        return false;
    }
    try {
        writeFile(path, source_ && format == SequenceFormat::MidiFile
                            ? source_->write(sequence_, time(), voices_, controllers_)
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
    recorder_.forgetTakes();
    undoStack_.setClean();
    return true;
}

UnsavedSequence SequenceDocument::snapshot() const
{
    const auto now = std::chrono::system_clock::now();
    return {path_,        std::chrono::floor<std::chrono::milliseconds>(now),
            isImported_,  sequence_.notes(),
            time(),       voices_,
            controllers_, reading(),
            source_};
}

void SequenceDocument::recover(const UnsavedSequence& unsaved)
{
    transport_.stop();
    const Edit edit(*this, {});
    *edit = {};
    edit->reserve(unsaved.notes.size());
    const bool isPlain = reading() == Reading::Plain;
    for (Note note : unsaved.notes) {
        if (isPlain && unsaved.source)
            layOutInSeconds(note, unsaved.musicalTime);
        note.id = 0;
        note.active = note.playing = note.selected = false;
        edit->addNote(note);
    }
    forgetFile();
    path_ = unsaved.path;
    isImported_ = unsaved.isImported || (isPlain && unsaved.source);
    if (!isPlain && unsaved.source)
        source_ = unsaved.source;
    if (!isPlain) {
        transport_.setTime(unsaved.musicalTime);
        takeVoices(unsaved.voices);
        controllers_ = unsaved.controllers;
    }
    errorString_.clear();
    recorder_.endTake();
    recorder_.forgetTakes();
    undoStack_.clear();
    undoStack_.resetClean();
    updateExtent();
}

SequenceDocument::Edit::Edit(SequenceDocument& document, std::span<const std::uint64_t> notes)
    : document_(document)
{
    document.transport_.prepareChange(notes);
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
        for (const NoteState& state : notes)
            if (const Note* note = edit->find(state.id))
                extent = std::max(extent, extentOf(*note));
        transport_.setExtent(extent);
    }
    practice_.showKeys(); // other notes may be wanted now
    emit transport_.frame();
}

void SequenceDocument::setTime(MusicalTime time, const QString& text)
{
    if (time == this->time())
        return;
    registerTake();
    undoStack_.push(new SwapCommand(text, [this, time = std::move(time)]() mutable {
        MusicalTime before = this->time();
        transport_.setTime(std::exchange(time, std::move(before)));
        emit changed();
    }));
}

void SequenceDocument::setControllers(Controllers controllers, const QString& text)
{
    if (controllers == controllers_)
        return;
    registerTake();
    pushControllers(std::move(controllers), text);
}

void SequenceDocument::pushControllers(Controllers controllers, const QString& text)
{
    undoStack_.push(new SwapCommand(text, [this, controllers = std::move(controllers)]() mutable {
        transport_.settle();
        controllers_.swap(controllers);
        transport_.controllersChanged();
        emit changed();
    }));
}

std::vector<std::uint64_t> SequenceDocument::perform(std::vector<NoteState> notes,
                                                     const QString& text)
{
    registerTake();
    swap(notes);
    std::vector<std::uint64_t> ids;
    ids.reserve(notes.size());
    for (const NoteState& state : notes)
        if (sequence_.find(state.id) != nullptr)
            ids.push_back(state.id);
    registerDone(std::move(notes), text);
    return ids;
}

void SequenceDocument::registerDone(std::vector<NoteState> before, const QString& text)
{
    undoStack_.push(new SwapNotes(*this, std::move(before), text));
}

QString SequenceDocument::editText(const char* text, std::size_t notes)
{
    return tr(text, nullptr, static_cast<int>(notes));
}

} // namespace velmora
