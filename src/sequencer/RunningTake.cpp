#include "sequencer/RunningTake.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceFile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// How early, in seconds, a key may be struck to count as the first of a recording.
constexpr double kEarly = 0.15;

/// The shortest note, in steps, that can be seen and heard.
constexpr double kShortest = 1.0 / 64.0;

/// An end that is so many steps past the position is not just rounded.
constexpr double kPast = 1e-6;

} // namespace

RunningTake::RunningTake(Transport& transport, Sequence& sequence, const TakeOptions& options)
    : transport_(transport), sequence_(sequence), options_(options),
      interval_(transport.interval()), loops_(transport.loops() && !interval_.isEmpty()),
      start_(options.punches ? interval_.start : transport.position()),
      place_(transport.host().liveKeys().events().end()),
      controlPlace_(transport.host().liveKeys().controls().end())
{
    if (options_.punches)
        removeReplaced();
}

// See docs/decisions.md, 190.
void RunningTake::removeReplaced()
{
    std::vector<NoteState> states;
    for (const Note& note : sequence_.notes()) {
        if (note.channel != options_.channel || note.start + note.length <= interval_.start ||
            note.start >= interval_.end)
            continue;
        before_.emplace(note.id, note);
        replaced_.push_back(note);
        NoteState& state = states.emplace_back(NoteState{note.id, std::nullopt});
        if (note.start < interval_.start) {
            state.note = note;
            state.note->length = state.note->oldLength = interval_.start - note.start;
        }
    }
    swap(states);
}

void RunningTake::swap(std::vector<NoteState>& states)
{
    std::vector<std::uint64_t> ids;
    ids.reserve(states.size());
    for (const NoteState& state : states)
        ids.push_back(state.id);
    transport_.prepareChange(ids);
    sequence_.swap(states);
}

bool RunningTake::take()
{
    const LiveKeys& keys = transport_.host().liveKeys();
    collect(keys.events(), place_, events_);
    collect(keys.controls(), controlPlace_, controls_);
    auto event = events_.begin();
    for (; event != events_.end() && event->time <= transport_.lastTick(); ++event) {
        takeControls(event->time);
        takeEvent(*event);
    }
    events_.erase(events_.begin(), event);
    takeControls(transport_.lastTick());
    while (pass_ < transport_.turns())
        finishPass();
    const double position = transport_.position();
    for (std::size_t key = 0; key < kKeys; ++key)
        lengthen(key, position);
    transport_.setExtent(std::max(transport_.extent(), position + kRoomBehindLastNote));
    return loops_ || !options_.punches || position < interval_.end;
}

RunningTake::Moment RunningTake::momentOf(double time) const
{
    const Pace pace = transport_.pace();
    double step = transport_.position();
    double seconds = transport_.lastTick() - time; // before that step
    int pass = transport_.turns();
    for (; loops_ && pass > pass_; --pass) {
        const double sinceTurn = pace.secondsBetween(interval_.start, step);
        if (seconds <= sinceTurn)
            break;
        seconds -= sinceTurn;
        step = interval_.end;
    }
    return {pace.stepAfter(step, -seconds), pass};
}

void RunningTake::takeEvent(const KeyEvent& event)
{
    const Moment moment = momentOf(event.time);
    while (pass_ < moment.pass)
        finishPass();
    if (event.isPress) {
        press(event, moment.step);
    } else {
        lengthen(event.key, moment.step);
        openNotes_[event.key] = 0;
    }
}

void RunningTake::takeControls(double until)
{
    auto control = controls_.begin();
    for (; control != controls_.end() && control->time <= until; ++control)
        takeControl(*control);
    controls_.erase(controls_.begin(), control);
}

void RunningTake::takeControl(const ControlEvent& event)
{
    const Moment moment = momentOf(event.time);
    while (pass_ < moment.pass)
        finishPass();
    if ((options_.punches || loops_) && moment.step >= interval_.end)
        return;
    // A pedal that goes down while the metronome counts is down from the first step on.
    const double step = std::max(moment.step, firstStep());
    std::erase_if(controllers_, [&](const ControllerEvent& other) {
        return other.number == event.number && other.step == step;
    });
    controllers_.push_back(
        {step, options_.channel, static_cast<std::uint8_t>(event.number), event.value});
    hasMoved_ = true;
}

void RunningTake::press(const KeyEvent& event, double step)
{
    transport_.host().liveKeys().take(event.key);
    lengthen(event.key, step); // pressed again from elsewhere
    openNotes_[event.key] = 0;
    const double early = kEarly * transport_.pace().stepsPerSecondAt(firstStep());
    const bool isPast = (options_.punches || loops_) && step >= interval_.end;
    if (step < firstStep() - early || isPast)
        return;
    const double exact = std::max(step, firstStep());
    const double start = options_.grid ? transport_.time().gridAt(exact, *options_.grid) : exact;
    const Note note{.start = start,
                    .length = kShortest,
                    .oldLength = kShortest,
                    .velocity = event.velocity,
                    .channel = options_.channel,
                    .key = event.key,
                    .oldStart = start,
                    .oldKey = event.key};
    const std::uint64_t id = sequence_.addNote(note).id;
    openNotes_[event.key] = id;
    recorded_.push_back(id);
    before_.emplace(id, std::nullopt);
}

void RunningTake::lengthen(std::size_t key, double step)
{
    Note* const note = openNotes_[key] == 0 ? nullptr : sequence_.find(openNotes_[key]);
    if (note == nullptr) // or it was deleted
        return;
    const bool ends = options_.punches || loops_;
    double end = ends ? std::min(step, interval_.end) : step;
    if (const auto& grid = options_.grid)
        end = std::max(transport_.time().gridAt(end, *grid),
                       transport_.time().gridAfter(note->start, *grid));
    const double length = std::max(end - note->start, kShortest);
    if (length == note->length)
        return;
    // If the position was moved back, or with a grid, the end may be planned already.
    if (note->start + std::max(length, note->length) > transport_.position() + kPast)
        transport_.prepareChange({&openNotes_[key], 1});
    before_.emplace(note->id, *note); // an edit may have ended the changes before
    note->length = note->oldLength = length;
}

void RunningTake::endNotes(double step)
{
    for (std::size_t key = 0; key < kKeys; ++key) {
        lengthen(key, step);
        openNotes_[key] = 0;
    }
}

void RunningTake::finishPass()
{
    ++pass_;
    endNotes(interval_.end);
    letGo(controllers_, interval_.end);
    Take take{{}, std::exchange(controllers_, {})};
    hasMoved_ = false;
    for (const std::uint64_t id : std::exchange(recorded_, {}))
        if (const Note* note = sequence_.find(id))
            take.notes.push_back(*note);
    if (take.notes.empty() && take.controllers.empty())
        return;
    std::vector<NoteState> states = absent(take.notes);
    swap(states);
    passes_.push_back(std::move(take));
}

void RunningTake::end()
{
    const double position = transport_.position();
    endNotes(position);
    letGo(controllers_, position);
    std::vector<NoteState> back;
    if (!loops_)
        for (const Note& note : replaced_)
            if (note.start >= position || position <= interval_.start)
                back.push_back({note.id, note});
    for (const NoteState& state : back)
        if (before_.erase(state.id) == 0) { // an edit has ended the changes since
            const Note* const now = sequence_.find(state.id);
            before_.emplace(state.id, now == nullptr ? std::nullopt : std::optional(*now));
        }
    if (!recorded_.empty() || !controllers_.empty()) {
        Take& take = passes_.emplace_back(Take{{}, controllers_});
        for (const std::uint64_t id : recorded_)
            if (const Note* note = sequence_.find(id))
                take.notes.push_back(*note);
    } else if (!passes_.empty()) { // nothing was played in the last pass
        for (const Note& note : passes_.back().notes)
            back.push_back({note.id, note});
        controllers_ = passes_.back().controllers;
        hasMoved_ = !controllers_.empty();
    }
    swap(back);
}

Controllers RunningTake::controllers()
{
    return std::exchange(hasMoved_, false) ? controllers_ : Controllers();
}

std::vector<NoteState> RunningTake::changes()
{
    std::vector<NoteState> states;
    for (auto& [id, note] : std::exchange(before_, {}))
        if (note || sequence_.find(id) != nullptr)
            states.push_back({id, note});
    return states;
}

} // namespace velmora
