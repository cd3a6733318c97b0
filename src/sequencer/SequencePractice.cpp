// Going from chord to chord, with the arrows or by playing them.

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceDocument.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// Notes as close as this to the position, in steps, stand at it.
constexpr double kTolerance = 0.1;

bool isUnanswered(int state)
{
    return state == kPressed || state == kWanted || state == (kWanted | kHeld);
}

} // namespace

void SequenceDocument::currentNote()
{
    const auto& notes = sequence_.notes();
    const auto found = std::find_if(notes.begin(), notes.end(), [this](const Note& note) {
        return note.start >= offset_ - kTolerance;
    });
    note_ = static_cast<int>(found - notes.begin());
}

void SequenceDocument::nextNote()
{
    const auto& notes = sequence_.notes();
    if (notes.empty())
        return;
    const auto found = std::find_if(notes.begin(), notes.end(), [this](const Note& note) {
        return note.start - offset_ > kTolerance;
    });
    if (found != notes.end()) {
        note_ = static_cast<int>(found - notes.begin());
        offset_ = found->start;
        return;
    }
    note_ = static_cast<int>(notes.size()) - 1;
    if (loop_ && intervalSelected()) {
        offset_ = selectionStart_;
        currentNote();
    } else if (loop_) {
        note_ = 0;
        offset_ = notes.front().start;
    }
}

void SequenceDocument::prevNote()
{
    const auto& notes = sequence_.notes();
    if (notes.empty())
        return;
    const auto walkDown = [&] {
        while (note_ >= 0 && offset_ - notes[static_cast<std::size_t>(note_)].start <= kTolerance)
            --note_;
    };
    note_ = static_cast<int>(notes.size()) - 1;
    walkDown();
    if (note_ < 0)
        return;
    // On to the first note of that chord.
    offset_ = notes[static_cast<std::size_t>(note_)].start;
    walkDown();
    if (note_ >= 0)
        offset_ = notes[static_cast<std::size_t>(++note_)].start;
}

void SequenceDocument::getCurrentNotes(bool advance)
{
    settle();
    auto& states = playback_.states;
    LiveKeys& keys = host_.liveKeys();
    for (std::size_t key = 0; key < kKeys; ++key)
        states[key] = keys.state(key);
    playback_.markAt(offset_, kTolerance, kWanted);
    if (!advance || std::any_of(states.begin(), states.end(), isUnanswered))
        return;

    for (std::size_t key = 0; key < kKeys; ++key) {
        const int before = keys.take(key);
        states[key] = before == kPressed ? kHeld : before;
    }
    nextNote();
    if (loop_ && selectionStart_ < selectionEnd_ && selectionEnd_ <= offset_) {
        offset_ = selectionStart_;
        currentNote();
    }
    emit scrolled(std::max(0.0, offset_ - kRoomBelowPosition));
    const auto& notes = sequence_.notes();
    for (auto i = static_cast<std::size_t>(std::max(note_, 0));
         i < notes.size() && notes[i].start - offset_ <= kTolerance; ++i)
        states[notes[i].key] |= kWanted;
}

void SequenceDocument::midiInput()
{
    // What plays or is recorded goes its own way.
    getCurrentNotes(mode_ == Mode::Stopped);
    emit frame();
}

} // namespace velmora
