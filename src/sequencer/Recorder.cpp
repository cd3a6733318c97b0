#include "sequencer/Recorder.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// A recording looks at the keys twice per tick, so that the length of each note is accurate to a
/// tick.
constexpr double kLookInterval = kTick.count() / 2;

/// Maximum number of looks per tick. After a long delay the looks are further apart, because more
/// of them would make a slow machine even later.
constexpr double kMostLooks = 2048.0;

/// How far the position moves after the last key, in steps.
constexpr double kRoomBehindLastKey = 8.0;

} // namespace

Recorder::Recorder(Transport& transport, Sequence& sequence)
    : transport_(transport), sequence_(sequence)
{
    connect(&transport, &Transport::recording, this, &Recorder::take);
}

void Recorder::record()
{
    if (transport_.mode() == Transport::Mode::Recording) {
        transport_.tick(); // takes the keys since the last tick
        transport_.endRecording();
        // See docs/decisions.md, 102.
        sequence_.sort();
        transport_.playback().sequenceChanged();
        emit ended();
    } else if (transport_.mode() == Transport::Mode::Stopped) {
        limit_ = transport_.position();
        heldKeys_.reset();
        transport_.startRecording();
    }
}

void Recorder::waitAt(double step)
{
    limit_ = step;
    transport_.setPosition(step);
}

void Recorder::setChannel(unsigned char channel)
{
    channel_ = channel;
    emit optionsChanged();
}

void Recorder::setSnapToGrid(bool snap)
{
    snapToGrid_ = snap;
    emit optionsChanged();
}

std::vector<NoteState> Recorder::endTake()
{
    std::vector<NoteState> before;
    for (const auto& [id, lengthBefore] : std::exchange(taken_, {})) {
        const Note* const note = sequence_.find(id);
        if (note == nullptr)
            continue;
        NoteState& state = before.emplace_back(NoteState{id, std::nullopt});
        if (lengthBefore) {
            state.note = *note;
            state.note->length = *lengthBefore;
        }
    }
    return before;
}

void Recorder::take(double from, double until)
{
    const double before = transport_.position();
    // A late tick looks at the keys as often as the ticks before it would have, so that each key is
    // taken at the position of its arrival.
    const double interval = std::max(kLookInterval, (until - from) / kMostLooks);
    while (until - from > interval) {
        takeKeys(from, from + interval);
        from += interval;
    }
    takeKeys(from, until);
    if (transport_.position() != before)
        transport_.revealPosition();
    transport_.setExtent(
        std::max(transport_.extent(), transport_.position() + kRoomBehindLastNote));
}

void Recorder::takeKeys(double from, double until)
{
    bool isAnyDown = false;
    for (std::size_t key = 0; key < kKeys; ++key)
        isAnyDown = takeKey(key, from, until) || isAnyDown;
    if (isAnyDown)
        limit_ = transport_.position() + kRoomBehindLastKey;
    // See docs/decisions.md, 101.
    if (isAnyDown || (!snapToGrid_ && transport_.position() <= limit_))
        transport_.advance(until - from);
}

bool Recorder::takeKey(std::size_t key, double from, double until)
{
    const int state = lookAt(key, from, until);
    heldKeys_[key] = state != 0;
    if (state == kPressed)
        begin(key);
    else if (state == kHeld)
        lengthen(key);
    return state != 0;
}

int Recorder::lookAt(std::size_t key, double from, double until)
{
    LiveKeys& keys = transport_.host().liveKeys();
    const double pressed = keys.pressTime(key);
    const int state = pressed <= until ? keys.take(key) : 0;
    if (state != 0)
        return state;
    if (!(until < keys.releaseTime(key)))
        return 0;
    // It was released after `until`.
    if (heldKeys_[key])
        return kHeld;
    return from < pressed && pressed <= until ? kPressed : 0;
}

void Recorder::begin(std::size_t key)
{
    const double position = transport_.position();
    Note note{.start = position,
              .length = 1.0,
              .oldLength = 1.0,
              .velocity = transport_.host().liveKeys().velocity(key),
              .channel = channel_,
              .key = static_cast<std::uint32_t>(key),
              .oldStart = position,
              .oldKey = static_cast<std::uint32_t>(key)};
    if (snapToGrid_)
        note.start = std::floor(note.start);
    transport_.playback().sequenceChanged();
    taken_.emplace(sequence_.addNote(note).id, std::nullopt);
}

void Recorder::lengthen(std::size_t key)
{
    const double position = transport_.position();
    const auto& notes = sequence_.notes();
    // See docs/decisions.md, 100.
    const auto last = std::find_if(notes.rbegin(), notes.rend(), [=](const Note& note) {
        return note.key == key && note.start <= position; // not one that is still to come
    });
    if (last == notes.rend())
        return;
    taken_.emplace(last->id, last->length);
    transport_.playback().sequenceChanged();
    Note& held = sequence_.at(static_cast<std::size_t>(notes.rend() - last) - 1);
    held.length = position - held.start;
    if (snapToGrid_)
        held.length = std::floor(held.length);
}

} // namespace velmora
