#include "sequencer/Transport.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

/// The least time between two frames in seconds. It lies between 15 and 16 ticks, so that every
/// sixteenth tick shows one, although ticks jitter.
constexpr double kFrame = 15.5 * kTick.count();

/// The height of the position above the bottom edge of the view, in steps.
constexpr double kRoomBelowPosition = 8.0;

} // namespace

Transport::Transport(SequenceHost& host, Sequence& sequence, Reading reading,
                     std::function<double()> clock)
    : reading_(reading), host_(host), clock_(std::move(clock)), playback_(host, sequence, reading),
      lastTick_(clock_())
{
}

void Transport::play()
{
    if (mode_ == Mode::Playing) {
        setMode(Mode::Stopped);
        stop();
    } else if (mode_ == Mode::Stopped) {
        lastTick_ = clock_();
        setMode(Mode::Playing);
        if (!interval_.isEmpty() && !interval_.contains(position_))
            scrollTo(interval_.start);
        playback_.usePrograms(position_);
        playback_.startControllers(position_);
    }
    emit frame();
}

void Transport::startRecording()
{
    lastTick_ = clock_();
    setMode(Mode::Recording);
    emit frame();
}

void Transport::startRunningRecording()
{
    lastTick_ = clock_();
    turns_ = 0;
    countIn_.clear();
    if (metronome_.countIn > 0)
        countIn();
    runs_ = true;
    setMode(Mode::Recording);
    playback_.usePrograms(position_);
    playback_.startControllers(position_);
    emit frame();
}

void Transport::countIn()
{
    const double stepsPerSecond = pace().stepsPerSecondAt(position_);
    const CountIn bars = countInTo(time_, position_, metronome_.countIn, metronome_.divides);
    for (const Beat& beat : bars.beats) {
        const double time = lastTick_ + beat.step / stepsPerSecond;
        host_.click(beat.click, time);
        if (beat.click != Click::Division)
            countIn_.push_back(time);
    }
    lastTick_ += bars.length / stepsPerSecond;
}

int Transport::beatsToCount() const
{
    const double now = clock_();
    if (!runs_ || now >= lastTick_)
        return 0;
    const auto later = std::ranges::count_if(countIn_, [now](double beat) { return beat > now; });
    return static_cast<int>(later) + 1; // with the one that sounds
}

void Transport::endRecording()
{
    if (std::exchange(runs_, false)) {
        stop();
        host_.cancelClicks();
    }
    setMode(Mode::Stopped);
    emit frame();
}

void Transport::setMetronome(const MetronomeSettings& settings)
{
    settle();
    metronome_ = reading_ == Reading::Musical ? settings : MetronomeSettings{};
    takeMetronome();
    emit optionsChanged();
}

void Transport::takeMetronome()
{
    const bool clicks =
        mode_ == Mode::Recording ? metronome_.whileRecording : metronome_.whilePlaying;
    playback_.setClicks(clicks ? &time_ : nullptr, metronome_.divides);
}

void Transport::setMode(Mode mode)
{
    mode_ = mode;
    takeMetronome();
    emit modeChanged();
}

void Transport::tick()
{
    // The plan is cancelled before the clock is read, so that the position is never behind what has
    // sounded.
    if (playback_.isPlanShort(clock_()))
        playback_.cancelPlan();
    double now = clock_();
    if (runs_ && now < lastTick_) { // it still counts
        showFrame(now);
        return;
    }
    if (mode_ == Mode::Playing) {
        emit playing(now);              // may stop it
        now = std::max(now, lastTick_); // it may have settled since
    }
    if (isRunning())
        playUntil(now);
    const double before = std::exchange(lastTick_, now);
    if (mode_ == Mode::Recording)
        emit recording(before, now);
    // The timer stops after the tick that ends playing, so that tick must show the result.
    if (mode_ == Mode::Stopped)
        emit frame();
    else
        showFrame(now);
}

// Late ticks are merged, so counting them would show fewer frames on a busy machine.
void Transport::showFrame(double now)
{
    if (now < nextFrame_)
        return;
    nextFrame_ = now + kFrame;
    emit frame();
}

Pace Transport::pace() const
{
    return reading_ == Reading::Plain ? Pace(kPlainStepsPerSecond * speed_) : Pace(time_, speed_);
}

double Transport::positionAt(double time) const
{
    return pace().stepAfter(position_, time - lastTick_);
}

double Transport::endOfPlaying() const
{
    if (mode_ == Mode::Recording) // it does not end with the notes
        return loop_ && !interval_.isEmpty() ? interval_.end
                                             : std::numeric_limits<double>::infinity();
    return interval_.isEmpty() ? extent_ : std::min(interval_.end, extent_);
}

std::optional<Interval> Transport::endlessLoop() const
{
    const Interval loop{interval_.isEmpty() ? 0.0 : interval_.start, endOfPlaying()};
    const bool isLong = pace().secondsBetween(loop.start, loop.end) > kTick.count();
    // In the plain reading every pass is longer by the rest of a tick.
    return loop_ && reading_ == Reading::Musical && !hold_ && isLong && std::isfinite(loop.end) &&
                   position_ <= loop.end
               ? std::optional(loop)
               : std::nullopt;
}

double Transport::playPasses(double seconds)
{
    const auto loop = endlessLoop();
    if (!loop) {
        const double next = pace().stepAfter(position_, seconds);
        return hold_ ? std::min(next, std::max(*hold_, position_)) : next;
    }
    double rest = pace().secondsBetween(position_, loop->end);
    while (seconds > rest) {
        playback_.playBetween(position_, loop->end);
        playback_.wrap(loop->start, loop->end);
        position_ = loop->start;
        seconds -= rest;
        rest = pace().secondsBetween(loop->start, loop->end);
        ++turns_;
    }
    return std::min(pace().stepAfter(position_, seconds), loop->end);
}

void Transport::playUntil(double now)
{
    double next = playPasses(now - lastTick_);
    if (next <= endOfPlaying()) {
        if (const auto lastKey = playback_.playBetween(position_, next))
            // See docs/decisions.md, 91.
            cursor_ = static_cast<int>(*lastKey);
        scrollTo(next);
    } else {
        playback_.silenceAll();
        next = interval_.isEmpty() ? 0.0 : interval_.start;
        scrollTo(next);
        playback_.usePrograms(next);
        if (!loop_)
            play();
    }
    playback_.finishPlan();
    if (mode_ == Mode::Stopped)
        return;
    if (const auto loop = endlessLoop())
        playback_.planLoop(next, now, pace(), loop->start, loop->end);
    else
        playback_.planAhead(next, now, pace(), endOfPlaying(), hold_);
}

void Transport::settle()
{
    if (playback_.cancelPlan())
        playOn(clock_());
}

void Transport::prepareChange(std::span<const std::uint64_t> notes)
{
    settle();
    for (const std::uint64_t id : notes)
        playback_.silence(id);
    playback_.sequenceChanged();
}

void Transport::controllersChanged()
{
    if (isRunning())
        playback_.startControllers(position_);
}

void Transport::playOn(double until)
{
    const double later = playPasses(until - lastTick_);
    const double next = std::max(position_, std::min(later, endOfPlaying()));
    playback_.playBetween(position_, next);
    playback_.finishPlan();
    position_ = next;
    lastTick_ = until;
}

void Transport::stop()
{
    settle();
    playback_.stop();
}

void Transport::setPosition(double step)
{
    settle();
    position_ = step;
    if (mode_ != Mode::Stopped)
        playback_.usePrograms(step);
    controllersChanged();
    emit moved();
}

void Transport::scrollTo(double step)
{
    position_ = step;
    if (interval_.isEmpty())
        revealPosition();
}

void Transport::setHold(std::optional<double> step, double time)
{
    settle();
    if (time > lastTick_)
        playOn(time);
    else if (hold_ && position_ >= *hold_)
        lastTick_ = time;
    hold_ = step;
}

void Transport::advance(double seconds)
{
    position_ = pace().stepAfter(position_, seconds);
}

void Transport::revealPosition()
{
    emit scrolled(position_ - kRoomBelowPosition);
}

void Transport::selectInterval(double start, double end)
{
    settle();
    interval_ = {start, end};
    emit moved();
}

void Transport::setExtent(double extent)
{
    if (std::exchange(extent_, extent) != extent)
        emit extentChanged();
}

void Transport::setTime(MusicalTime time)
{
    settle();
    time_ = std::move(time);
    emit optionsChanged();
}

void Transport::setPrograms(ProgramChanges changes)
{
    settle();
    playback_.setPrograms(std::move(changes));
}

void Transport::setSpeed(double speed)
{
    settle();
    speed_ = speed;
    emit optionsChanged();
}

void Transport::setLoop(bool loop)
{
    settle();
    loop_ = loop;
    emit optionsChanged();
}

} // namespace velmora
