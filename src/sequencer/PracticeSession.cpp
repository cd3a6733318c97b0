#include "sequencer/PracticeSession.h"

#include "sequencer/LiveKeys.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace velmora {

namespace {

/// Notes that begin within so many steps are one chord, though a player has recorded them.
constexpr double kChordWidth = 0.5;

/// The slowest speed that mistakes lead to.
constexpr double kSlowest = 0.3;

constexpr double kNowhere = std::numeric_limits<double>::infinity();

} // namespace

PracticeSession::PracticeSession(Transport& transport, const Sequence& sequence)
    : transport_(transport), sequence_(sequence)
{
    connect(&transport, &Transport::playing, this, &PracticeSession::follow);
    connect(&transport, &Transport::moved, this, &PracticeSession::seek);
    connect(&transport, &Transport::optionsChanged, this, [this] {
        if (isRunning_)
            waitForChord(transport_.lastTick());
    });
    connect(&transport, &Transport::modeChanged, this, [this] {
        if (transport_.mode() != Transport::Mode::Playing)
            end();
    });
}

Interval PracticeSession::stretch() const
{
    if (!transport_.interval().isEmpty())
        return transport_.interval();
    double last = 0.0;
    for (const Note& note : sequence_.notes())
        last = std::max(last, note.start + note.length);
    return {0.0, last};
}

bool PracticeSession::start(const PracticeOptions& options)
{
    if (transport_.mode() == Transport::Mode::Recording)
        return false;
    if (transport_.mode() == Transport::Mode::Playing)
        transport_.play(); // stops it
    options_ = options;
    findChords();
    if (chords_.empty())
        return false;
    if (!transport_.interval().isEmpty() || transport_.position() > chords_.back().step)
        transport_.setPosition(stretch().start);
    result_ = {};
    mistakes_ = 0;
    wrongKeys_.reset();
    events_.clear();
    place_ = transport_.host().liveKeys().events().end();
    transport_.playback().leaveOut(options.part);
    transport_.play();
    isRunning_ = true;
    seek();
    emit started();
    return true;
}

void PracticeSession::stop()
{
    if (isRunning_)
        transport_.play();
}

void PracticeSession::end()
{
    if (!std::exchange(isRunning_, false))
        return;
    // The stretch may end before the time for its last chord is over.
    const bool isLast = chord_ + 1 == chords_.size() && !isNextPass_;
    if (!options_.waits && isLast && dueTime_ <= followedTo_) {
        countMissed();
        ++chord_;
    }
    if (chord_ == chords_.size())
        countPass();
    transport_.setHold(std::nullopt, transport_.lastTick());
    transport_.playback().leaveOut(std::nullopt);
    result_.speed = transport_.speed();
    emit ended();
}

void PracticeSession::findChords()
{
    chords_.clear();
    const Interval stretch = this->stretch();
    for (const Note& note : sequence_.notes()) {
        if (!options_.part.contains(note) || !stretch.contains(note.start))
            continue;
        if (chords_.empty() || note.start - chords_.back().step >= kChordWidth)
            chords_.push_back({note.start, {}, {}});
        chords_.back().keys.set(note.key);
    }
}

void PracticeSession::seek()
{
    if (!isRunning_)
        return;
    findChords();
    const auto next = std::ranges::find_if(chords_, [this](const Chord& chord) {
        return chord.step >= transport_.position() - kChordWidth / 2;
    });
    chord_ = static_cast<std::size_t>(next - chords_.begin());
    isNextPass_ = false;
    lastPosition_ = transport_.position();
    beginPass();
    isUntimed_ = chord_ < chords_.size() &&
                 dueTimeOf(chord_, isNextPass_) - transport_.lastTick() < options_.tolerance;
    waitForChord(transport_.lastTick());
}

void PracticeSession::beginPass()
{
    for (Chord& chord : chords_)
        chord.missing = chord.keys;
    if (chord_ == chords_.size() && transport_.loops() && !chords_.empty()) {
        chord_ = 0;
        isNextPass_ = true;
    }
}

void PracticeSession::waitForChord(double time)
{
    if (chord_ == chords_.size()) {
        transport_.setHold(kNowhere, time);
        return;
    }
    const bool holds = (options_.waits || isUntimed_) && !isNextPass_;
    transport_.setHold(holds ? chords_[chord_].step : kNowhere, time);
    dueTime_ = dueTimeOf(chord_, isNextPass_);
}

double PracticeSession::dueTimeOf(std::size_t chord, bool isInNextPass) const
{
    const Pace pace = transport_.pace();
    const double position = transport_.position();
    const double step = chords_[chord].step;
    if (!isInNextPass)
        return transport_.lastTick() + pace.secondsBetween(position, step);
    const Interval stretch = this->stretch();
    return transport_.lastTick() + pace.secondsBetween(position, std::max(position, stretch.end)) +
           pace.secondsBetween(stretch.start, step);
}

double PracticeSession::endOfChord() const
{
    const double latest = dueTime_ + options_.tolerance;
    const bool isLast = chord_ + 1 == chords_.size();
    if (isLast && (isNextPass_ || !transport_.loops()))
        return latest;
    const double next = isLast ? dueTimeOf(0, true) : dueTimeOf(chord_ + 1, isNextPass_);
    return std::min(latest, (dueTime_ + next) / 2);
}

void PracticeSession::follow(double until)
{
    if (!isRunning_)
        return;
    const KeyEvents& events = transport_.host().liveKeys().events();
    while (const auto event = events.read(place_))
        events_.push_back(*event);
    std::ranges::stable_sort(events_, {}, &KeyEvent::time);
    const auto later = std::ranges::find_if(
        events_, [until](const KeyEvent& event) { return event.time > until; });
    for (auto event = events_.begin(); event != later; ++event) {
        passChords(event->time);
        if (event->isPress)
            strike(*event, until);
        else
            wrongKeys_.reset(event->key);
    }
    events_.erase(events_.begin(), later);
    passChords(until);
    followedTo_ = until;
    const double position = transport_.position();
    if (std::exchange(lastPosition_, position) > position)
        turn();
    else if (chord_ == chords_.size() && position >= stretch().end)
        stop();
}

void PracticeSession::turn()
{
    while (!isNextPass_ && chord_ < chords_.size()) {
        countMissed();
        nextChord(transport_.lastTick());
    }
    if (!isNextPass_) // the loop was switched on after the last chord
        beginPass();
    isNextPass_ = false;
    changeSpeed(countPass());
    waitForChord(transport_.lastTick());
}

void PracticeSession::passChords(double time)
{
    while (!options_.waits && !isUntimed_ && chord_ < chords_.size() && time > dueTime_ &&
           time > endOfChord()) {
        countMissed();
        nextChord(transport_.lastTick());
    }
}

void PracticeSession::countMissed()
{
    const Chord& chord = chords_[chord_];
    for (std::uint32_t key = 0; key < kKeys; ++key)
        if (chord.missing[key])
            result_.missed.push_back({chord.step, key});
    ++mistakes_;
}

void PracticeSession::strike(const KeyEvent& event, double until)
{
    const bool isWanted = chord_ < chords_.size() && chords_[chord_].missing[event.key];
    const double delay = isUntimed_ ? 0.0 : event.time - dueTime_;
    if (!isWanted || delay < -options_.tolerance) {
        result_.wrong.push_back({transport_.position(), event.key});
        wrongKeys_.set(event.key);
        ++mistakes_;
        return;
    }
    Chord& chord = chords_[chord_];
    chord.missing.reset(event.key);
    result_.strokes.push_back({chord.step, event.key, delay});
    if (delay > options_.tolerance)
        ++mistakes_;
    if (chord.missing.any())
        return;
    nextChord(std::min(std::max(event.time, dueTime_), until));
}

void PracticeSession::nextChord(double time)
{
    isUntimed_ = false;
    ++chord_;
    if (chord_ == chords_.size())
        beginPass();
    waitForChord(time);
}

bool PracticeSession::countPass()
{
    const bool isClean = std::exchange(mistakes_, 0) == 0;
    ++result_.passes;
    if (isClean)
        ++result_.cleanPasses;
    return isClean;
}

void PracticeSession::changeSpeed(bool isClean)
{
    const double speed = transport_.speed();
    if (isClean && speed < 1.0)
        transport_.setSpeed(std::min(1.0, speed + options_.speedStep));
    else if (!isClean && options_.slowsDown && speed > kSlowest)
        transport_.setSpeed(std::max(kSlowest, speed - options_.speedStep));
}

int PracticeSession::stateOfNote(unsigned key) const
{
    const bool isDown = transport_.host().liveKeys().state(key) != 0;
    if (chord_ < chords_.size() && chords_[chord_].keys[key]) {
        if (chords_[chord_].missing[key])
            return kWanted;
        if (isDown)
            return kWanted | kPressed;
    }
    if (!isDown)
        return 0;
    return wrongKeys_[key] ? kPressed : kHeld;
}

} // namespace velmora
