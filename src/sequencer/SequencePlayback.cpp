#include "sequencer/SequencePlayback.h"

#include "sequencer/LiveKeys.h"
#include "sequencer/SequenceTime.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>

namespace velmora {

namespace {

/// The length of a plan in ticks: a quarter of a second, which is longer than any painting takes.
constexpr int kTicksPlanned = 256;

/// The delay of planned notes in seconds. It ensures that the position is past everything that has
/// sounded, whatever the rounding.
constexpr double kBehindPosition = 1e-6;

/// How far the step of an action in a loop is past its note, so that the note is not played again.
constexpr double kPastAction = 1e-9;

// See docs/decisions.md, 96.
bool startsBetween(const Note& note, double from, double to)
{
    return from <= note.start && note.start < to;
}

// See docs/decisions.md, 99.
bool endsBetween(const Note& note, double from, double to)
{
    const double end = note.start + note.length;
    return end <= to &&
           (from < end || startsBetween(note, from, to)); // a note without length as well
}

} // namespace

std::optional<std::uint32_t> SequencePlayback::playBetween(double from, double to)
{
    const bool isHeard = !isPlanned_ && !soundedTo_;
    if (soundedTo_) {
        if (*soundedTo_ - ahead_ < passStart_) // the plan has not come to the turn
            turn(passStart_);
        actions_.clear();
        collect(std::max(*soundedTo_ - ahead_, passStart_), to, 0.0);
        for (const KeyAction& action : actions_)
            perform(host_, action);
        actions_.clear();
    }
    if (isHeard) {
        for (const Beat& beat : beatsBetween(from, to))
            host_.click(beat.click, 0.0);
        for (const ProgramChange& change : programsBetween(from, to))
            host_.setProgram(change.channel, change.preset, 0.0);
        moveControllers(controllersBetween(from, to));
    }
    std::optional<std::uint32_t> lastKey;
    bool silenced = false;
    for (const std::uint32_t noteIndex : index().startingOrEnding(from, to)) {
        Note& note = sequence_.at(noteIndex);
        if (startsBetween(note, from, to)) {
            mark(noteIndex);
            note.playing = note.active = true;
            states[note.key] = kWanted;
            lastKey = note.key;
            if (isHeard && isPlayed(note))
                perform(host_, {true, note.key, channelOf(note), note.velocity, 0.0, 0.0});
        }
        if (endsBetween(note, from, to)) {
            note.playing = note.active = false;
            states[note.key] = stateAfter(note);
            silenced = true;
            if (isHeard && isPlayed(note))
                stopOnInstrument(note.key, channelOf(note));
        }
    }
    if (silenced)
        forgetUnmarked();
    return lastKey;
}

void SequencePlayback::collect(double from, double to, double time)
{
    for (const Beat& beat : beatsBetween(from, to))
        actions_.push_back({.time = time, .step = to, .click = beat.click});
    for (const ProgramChange& change : programsBetween(from, to))
        actions_.push_back({.time = time, .step = to, .program = change});
    for (const ControllerEvent& event : controllersBetween(from, to)) {
        // `stop` may have let them go while the sequence plays on.
        moved_.at(event.channel).set(event.number);
        actions_.push_back({.time = time, .step = to, .controller = event});
    }
    for (const std::uint32_t noteIndex : index().startingOrEnding(from, to)) {
        const Note& note = sequence_.at(noteIndex);
        if (!isPlayed(note))
            continue;
        if (startsBetween(note, from, to))
            // See docs/decisions.md, 90.
            actions_.push_back({true, note.key, channelOf(note), note.velocity, time, to});
        if (endsBetween(note, from, to))
            actions_.push_back({false, note.key, channelOf(note), 0.0F, time, to});
    }
}

void SequencePlayback::setClicks(const MusicalTime* time, bool divides)
{
    clicksOn_ = time;
    divides_ = divides;
}

std::vector<Beat> SequencePlayback::beatsBetween(double from, double to) const
{
    return clicksOn_ == nullptr ? std::vector<Beat>()
                                : velmora::beatsBetween(*clicksOn_, from, to, divides_);
}

void SequencePlayback::playAhead(AheadPlayer* player)
{
    cancelPlan();
    finishPlan();
    player_ = player;
}

void SequencePlayback::planAhead(double step, double time, const Pace& pace, double end,
                                 std::optional<double> hold)
{
    if (player_ == nullptr || isPlanned_)
        return;
    isPlanned_ = true;
    planStart_ = step;
    replanTime_ = time + kTick.count() * kTicksPlanned / 2;
    actions_.clear();
    for (int tick = 0; tick < kTicksPlanned; ++tick) {
        const double from = pace.stepAfter(step, kTick.count() * tick);
        const double after = pace.stepAfter(step, kTick.count() * (tick + 1));
        const double to = hold ? std::min(after, *hold) : after;
        if (to > end || from >= to) {
            replanTime_ = std::numeric_limits<double>::infinity();
            break;
        }
        collect(from, to, time + kTick.count() * (tick + 1) + kBehindPosition);
    }
    player_->plan(actions_);
}

// See docs/decisions.md, 188.
void SequencePlayback::planLoop(double step, double time, const Pace& pace, double start,
                                double end)
{
    if (player_ == nullptr || isPlanned_)
        return;
    isPlanned_ = true;
    planStart_ = step;
    replanTime_ = time + kTick.count() * kTicksPlanned / 2;
    actions_.clear();
    const double last = time + kTick.count() * kTicksPlanned;
    const Controllers values =
        controllers_ == nullptr ? Controllers() : valuesBeforePass(*controllers_, start, end);
    double ahead = 0.0; // of the loop's steps
    for (double from = step; time < last; from = start) {
        const double turn = time + pace.secondsBetween(from, end);
        if (turn > last) {
            planPass(from, std::min(end, pace.stepAfter(from, last - time)), time, pace, ahead);
            break;
        }
        planPass(from, end, time, pace, ahead);
        for (const std::uint32_t key : index().keys())
            actions_.push_back({false, key, kEveryChannel, 0.0F, turn + kBehindPosition,
                                end + ahead + kPastAction});
        for (const ProgramChange& change : programsAt(programs_, start))
            actions_.push_back({.time = turn + kBehindPosition,
                                .step = end + ahead + kPastAction,
                                .program = change});
        for (const ControllerEvent& event : values)
            actions_.push_back({.time = turn + kBehindPosition,
                                .step = end + ahead + kPastAction,
                                .controller = event});
        ahead += end - start;
        time = turn;
    }
    player_->plan(actions_);
}

void SequencePlayback::planPass(double from, double to, double time, const Pace& pace, double ahead)
{
    const auto begin = static_cast<std::ptrdiff_t>(actions_.size());
    const auto add = [&](const Note& note, bool starts, double step) {
        actions_.push_back({starts, note.key, channelOf(note), starts ? note.velocity : 0.0F,
                            time + pace.secondsBetween(from, step) + kBehindPosition,
                            step + ahead + kPastAction});
    };
    for (const Beat& beat : beatsBetween(from, to))
        actions_.push_back({.time = time + pace.secondsBetween(from, beat.step) + kBehindPosition,
                            .step = beat.step + ahead + kPastAction,
                            .click = beat.click});
    for (const ProgramChange& change : programsBetween(from, to))
        actions_.push_back({.time = time + pace.secondsBetween(from, change.step) + kBehindPosition,
                            .step = change.step + ahead + kPastAction,
                            .program = change});
    for (const ControllerEvent& event : controllersBetween(from, to)) {
        moved_.at(event.channel).set(event.number);
        actions_.push_back({.time = time + pace.secondsBetween(from, event.step) + kBehindPosition,
                            .step = event.step + ahead + kPastAction,
                            .controller = event});
    }
    for (const std::uint32_t noteIndex : index().startingOrEnding(from, to)) {
        const Note& note = sequence_.notes()[noteIndex];
        if (!isPlayed(note))
            continue;
        if (startsBetween(note, from, to))
            add(note, true, note.start);
        if (endsBetween(note, from, to))
            add(note, false, note.start + note.length);
    }
    std::stable_sort(std::next(actions_.begin(), begin), actions_.end(),
                     [](const KeyAction& a, const KeyAction& b) { return a.time < b.time; });
}

void SequencePlayback::wrap(double start, double end)
{
    for (const std::uint32_t key : index().keys())
        states[key] = 0;
    if (!isPlanned_ && !soundedTo_)
        turn(start);
    clearMarks();
    ahead_ += end - start;
    passStart_ = start;
}

void SequencePlayback::turn(double start)
{
    for (const std::uint32_t key : index().keys())
        stopOnInstrument(key, kEveryChannel);
    usePrograms(start);
    startControllers(start);
}

void SequencePlayback::finishPlan()
{
    if (isPlanned_)
        return;
    soundedTo_.reset();
    ahead_ = 0.0;
    passStart_ = -std::numeric_limits<double>::infinity();
}

bool SequencePlayback::cancelPlan()
{
    if (!std::exchange(isPlanned_, false))
        return false;
    soundedTo_ = player_->cancel().value_or(planStart_);
    return true;
}

void SequencePlayback::silence(std::uint64_t id)
{
    Note* const note = sequence_.find(id);
    if (note == nullptr || !note->playing)
        return;
    index(); // knows which notes are marked
    note->playing = note->active = false;
    states[note->key] = stateAfter(*note);
    stopOnInstrument(note->key, channelOf(*note));
}

// See docs/decisions.md, 98.
void SequencePlayback::silenceAll()
{
    cancelPlan();
    finishPlan();
    for (const std::uint32_t key : index().keys()) {
        states[key] = 0;
        stopOnInstrument(key, kEveryChannel);
    }
    clearMarks();
}

void SequencePlayback::clearMarks()
{
    for (const std::uint32_t noteIndex : marked_)
        sequence_.at(noteIndex).playing = sequence_.at(noteIndex).active = false;
    marked_.clear();
}

void SequencePlayback::stop()
{
    letControllersGo();
    for (std::size_t i = 0; i < sequence_.notes().size(); ++i) {
        Note& note = sequence_.at(i);
        if (note.playing)
            stopOnInstrument(note.key, channelOf(note));
        note.playing = false;
    }
}

void SequencePlayback::markAt(double step, double tolerance, int state)
{
    const auto& starts = index().starts();
    for (const std::uint32_t noteIndex : marked_)
        sequence_.at(noteIndex).active = false;
    forgetUnmarked();
    auto moment = std::partition_point(starts.begin(), starts.end(), [=](const auto& start) {
        return start.step - step < -tolerance;
    });
    for (; moment != starts.end() && !(moment->step - step > tolerance); ++moment) {
        mark(moment->noteIndex);
        Note& note = sequence_.at(moment->noteIndex);
        note.active = true;
        states[note.key] |= state;
    }
}

void SequencePlayback::markSounding(double step, int state)
{
    index(); // knows which notes are marked
    for (std::uint32_t i = 0; i < sequence_.notes().size(); ++i) {
        Note& note = sequence_.at(i);
        const bool isAtStep = note.start <= step && step < note.start + note.length;
        if (isAtStep) {
            mark(i);
            states[note.key] |= state;
        }
        note.active = isAtStep;
    }
    forgetUnmarked();
}

void SequencePlayback::stopOnInstrument(std::uint32_t key, int channel)
{
    perform(host_, {false, key, channel, 0.0F, 0.0, 0.0});
}

SequenceIndex& SequencePlayback::index()
{
    if (!index_) {
        index_.emplace(sequence_.notes());
        marked_.clear();
        for (const auto& [step, noteIndex] : index_->starts())
            if (isMarked(noteIndex))
                marked_.push_back(noteIndex);
    }
    return *index_;
}

bool SequencePlayback::isMarked(std::uint32_t noteIndex) const
{
    const Note& note = sequence_.notes()[noteIndex];
    return note.playing || note.active;
}

void SequencePlayback::mark(std::uint32_t noteIndex)
{
    if (!isMarked(noteIndex))
        marked_.push_back(noteIndex);
}

// See docs/decisions.md, 97.
int SequencePlayback::stateAfter(const Note& ended) const
{
    const bool sounds = std::ranges::any_of(marked_, [&](std::uint32_t noteIndex) {
        const Note& note = sequence_.at(noteIndex);
        return note.playing && note.key == ended.key && channelOf(note) != channelOf(ended);
    });
    return sounds && reading_ == Reading::Musical ? kWanted : 0;
}

void SequencePlayback::forgetUnmarked()
{
    std::erase_if(marked_, [this](std::uint32_t noteIndex) { return !isMarked(noteIndex); });
}

} // namespace velmora
