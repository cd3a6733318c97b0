#include "base/Log.h"
#include "platform/writeFile.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/UnsavedSequence.h"

#include <new>
#include <stdexcept>

namespace velmora {

bool SequenceDocument::saveToURL(const std::filesystem::path& path, const std::string& type,
                                 SaveOperation operation)
{
    errorString_.clear();
    if (operation != SaveOperation::SaveAs && isImported_) {
        errorString_ = "The source file contains unprocessed MIDI information which cannot be "
                       "overwriten (multichannel, meta events,…). Use the 'Save As…' option "
                       "instead.";
        return false;
    }
    if (type != kMidiFileType && type != kIMelodyType)
        return false;
    try {
        writeFile(path, writeSequence(sequence_, type));
    } catch (const std::length_error& error) {
        errorString_ = path.filename().string() + " cannot be written: " + error.what();
    } catch (const std::bad_alloc&) {
        errorString_ = path.filename().string() + " is too large to be written";
    } catch (const std::runtime_error& error) {
        errorString_ = error.what();
    }
    if (!errorString_.empty()) {
        logger("sequencer").info("{}", errorString_);
        return false;
    }
    if (operation == SaveOperation::SaveAs) {
        path_ = path;
        isImported_ = false;
    }
    registerTake();
    undoStack_.setClean();
    return true;
}

UnsavedSequence SequenceDocument::snapshot() const
{
    const auto now = std::chrono::system_clock::now();
    return {path_, std::chrono::floor<std::chrono::milliseconds>(now), isImported_,
            sequence_.notes()};
}

void SequenceDocument::recover(const UnsavedSequence& unsaved)
{
    stop();
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
    errorString_.clear();
    taken_.clear();
    undoStack_.clear();
    undoStack_.resetClean();
    measure();
}

} // namespace velmora
