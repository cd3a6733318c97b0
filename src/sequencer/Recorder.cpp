#include "sequencer/Recorder.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceFile.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

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
        if (transport_.mode() == Transport::Mode::Recording)
            finish();
    } else if (transport_.mode() == Transport::Mode::Stopped && runs()) {
        startRunning();
    } else if (transport_.mode() == Transport::Mode::Stopped) {
        running_.reset();
        limit_ = runStart_ = transport_.position();
        heldKeys_.reset();
        openNotes_ = {};
        events_.clear();
        place_ = transport_.host().liveKeys().events().end();
        controls_.clear();
        controlPlace_ = transport_.host().liveKeys().controls().end();
        if (transport_.reading() == Reading::Plain)
            takeHeldKeys();
        transport_.startRecording();
        stoodSince_ = transport_.lastTick();
    }
}

void Recorder::finish()
{
    if (running_)
        running_->end();
    else
        letGo(moved_, transport_.position());
    transport_.endRecording();
    // See docs/decisions.md, 102.
    sequence_.sort();
    transport_.playback().sequenceChanged();
    emit ended();
}

bool Recorder::runs() const
{
    const MetronomeSettings& metronome = transport_.metronome();
    const bool isInterval = !transport_.interval().isEmpty() && (punches_ || transport_.loops());
    return transport_.reading() == Reading::Musical &&
           (isInterval || metronome.whileRecording || metronome.countIn > 0);
}

void Recorder::startRunning()
{
    const Interval& interval = transport_.interval();
    const bool punches = punches_ && !interval.isEmpty();
    const double position = transport_.position();
    if ((punches && position >= interval.end) ||
        (transport_.loops() && !interval.isEmpty() && !interval.contains(position)))
        transport_.scrollTo(interval.start);
    transport_.startRunningRecording();
    running_.emplace(
        transport_, sequence_,
        TakeOptions{channel_, snapToGrid_ ? std::optional(grid_) : std::nullopt, punches});
}

void Recorder::setPunches(bool punches)
{
    punches_ = punches;
    emit optionsChanged();
}

const std::vector<Take>& Recorder::takes() const
{
    static const std::vector<Take> kNone;
    return running_ ? running_->passes() : kNone;
}

void Recorder::forgetTakes()
{
    if (transport_.mode() != Transport::Mode::Recording)
        running_.reset();
}

void Recorder::waitAt(double step)
{
    limit_ = runStart_ = step;
    openNotes_ = {};
    transport_.setPosition(step);
    stoodSince_ = transport_.lastTick();
}

void Recorder::setChannel(unsigned char channel)
{
    channel_ = channel;
    emit optionsChanged();
}

void Recorder::setVelocity(float velocity)
{
    if (transport_.reading() == Reading::Musical)
        velocity_ = velocity;
}

void Recorder::setSnapToGrid(bool snap)
{
    snapToGrid_ = snap;
    emit optionsChanged();
}

double Recorder::snapped(double step) const
{
    if (!snapToGrid_)
        return step;
    return transport_.reading() == Reading::Plain ? std::floor(step)
                                                  : transport_.time().gridAt(step, grid_);
}

double Recorder::snappedUp(double step) const
{
    if (!snapToGrid_)
        return step;
    if (transport_.reading() == Reading::Plain)
        return std::ceil(step);
    const double line = transport_.time().gridAt(step, grid_);
    return line < step ? transport_.time().gridAfter(step, grid_) : line;
}

std::vector<NoteState> Recorder::endTake()
{
    std::vector<NoteState> before;
    if (running_)
        before = running_->changes();
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
    if (running_) {
        if (!running_->take())
            finish();
        return;
    }
    const double before = transport_.position();
    collect(transport_.host().liveKeys().events(), place_, events_);
    auto event = events_.begin();
    for (; event != events_.end() && event->time <= until; ++event) {
        const double time = std::max(from, event->time);
        run(from, time);
        from = time;
        if (event->isPress)
            press(*event, time);
        else
            release(event->key, time - event->time);
    }
    events_.erase(events_.begin(), event);
    run(from, until);
    releaseSilencedKeys();
    takeControllers(until);
    for (std::size_t key = 0; key < kKeys; ++key)
        if (openNotes_[key] != 0)
            lengthen(key, transport_.position());
    if (transport_.position() != before)
        transport_.revealPosition();
    transport_.setExtent(
        std::max(transport_.extent(), transport_.position() + kRoomBehindLastNote));
}

void Recorder::takeControllers(double until)
{
    if (transport_.reading() == Reading::Plain)
        return;
    collect(transport_.host().liveKeys().controls(), controlPlace_, controls_);
    auto event = controls_.begin();
    for (; event != controls_.end() && event->time <= until; ++event)
        moved_.push_back({positionBefore(until - event->time), channel_,
                          static_cast<std::uint8_t>(event->number), event->value});
    controls_.erase(controls_.begin(), event);
}

Controllers Recorder::endControllers()
{
    return running_ ? running_->controllers() : std::exchange(moved_, {});
}

// See docs/decisions.md, 100.
void Recorder::takeHeldKeys()
{
    LiveKeys& keys = transport_.host().liveKeys();
    const double position = transport_.position();
    const auto& notes = sequence_.notes();
    for (std::size_t key = 0; key < kKeys; ++key) {
        const int state = keys.take(key);
        heldKeys_[key] = state != 0;
        if (state == kPressed)
            begin(key, keys.velocity(key), position);
        if (state != kHeld)
            continue;
        const auto last = std::find_if(notes.rbegin(), notes.rend(), [=](const Note& note) {
            return note.key == key && note.start <= position; // not one that is still to come
        });
        openNotes_[key] = last == notes.rend() ? 0 : last->id;
    }
}

/// Ends the keys of which no release was announced, such as those that `clear` has released.
void Recorder::releaseSilencedKeys()
{
    const LiveKeys& keys = transport_.host().liveKeys();
    for (std::size_t key = 0; key < kKeys; ++key)
        if (heldKeys_[key] && keys.state(key) == 0 &&
            std::ranges::find(events_, key, &KeyEvent::key) == events_.end())
            release(key, 0.0);
}

void Recorder::run(double from, double until)
{
    const double position = transport_.position();
    double seconds = until - from;
    // See docs/decisions.md, 101.
    if (heldKeys_.none()) {
        const double room = transport_.pace().secondsBetween(position, std::max(limit_, position));
        seconds = snapToGrid_ ? 0.0 : std::min(seconds, room);
    }
    transport_.advance(seconds);
    if (seconds < until - from && !stoodSince_)
        stoodSince_ = from + seconds;
    if (heldKeys_.any()) {
        limit_ = transport_.position() + kRoomBehindLastKey;
        stoodSince_.reset();
    }
}

double Recorder::positionBefore(double delay) const
{
    const double position = transport_.position();
    return std::max(transport_.pace().stepAfter(position, -delay), std::min(runStart_, position));
}

void Recorder::press(const KeyEvent& event, double time)
{
    const double delay = time - event.time;
    double missed = 0.0; // a position that stands moves from the moment of the key
    if (const auto since = std::exchange(stoodSince_, std::nullopt)) {
        missed = std::clamp(time - *since, 0.0, delay);
        if (event.time >= *since)
            runStart_ = transport_.position();
    }
    const double position = positionBefore(delay - missed);
    if (openNotes_[event.key] != 0)
        lengthen(event.key, position); // pressed again from elsewhere
    transport_.host().liveKeys().take(event.key);
    heldKeys_.set(event.key);
    begin(event.key, event.velocity, position);
    transport_.advance(missed);
}

void Recorder::release(std::size_t key, double delay)
{
    lengthen(key, positionBefore(delay));
    openNotes_[key] = 0;
    heldKeys_.reset(key);
}

void Recorder::begin(std::size_t key, float velocity, double position)
{
    setVelocity(velocity);
    Note note{.start = position,
              .length = 1.0,
              .oldLength = 1.0,
              .velocity = velocity,
              .channel = channel_,
              .key = static_cast<std::uint32_t>(key),
              .oldStart = position,
              .oldKey = static_cast<std::uint32_t>(key)};
    note.start = snapped(note.start);
    transport_.playback().sequenceChanged();
    openNotes_[key] = sequence_.addNote(note).id;
    taken_.emplace(openNotes_[key], std::nullopt);
}

double Recorder::snappedLength(double start, double end) const
{
    if (transport_.reading() == Reading::Plain)
        return std::floor(end - start);
    return std::max(snapped(end), transport_.time().gridAfter(start, grid_)) - start;
}

void Recorder::lengthen(std::size_t key, double position)
{
    Note* const note = sequence_.find(openNotes_[key]);
    if (note == nullptr || position < note->start) // edited during the take
        return;
    // Shorter notes could be neither seen nor heard.
    const double shortest = transport_.pace().stepsPerSecondAt(note->start) * kTick.count();
    const double exact = position - note->start;
    const double length =
        snapToGrid_ ? snappedLength(note->start, position) : std::max(exact, shortest);
    if (length == note->length)
        return;
    taken_.emplace(note->id, note->length);
    transport_.playback().sequenceChanged();
    note->length = length;
}

} // namespace velmora
