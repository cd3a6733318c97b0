#include "sequencer/Transport.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr unsigned kTicksPerFrame = 16;

/// The height of the position above the bottom edge of the view, in steps.
constexpr double kRoomBelowPosition = 8.0;

} // namespace

Transport::Transport(SequenceHost& host, Sequence& sequence, Reading reading,
                     std::function<double()> clock)
    : reading_(reading), host_(host), clock_(std::move(clock)), playback_(host, sequence),
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
    }
    emit frame();
}

void Transport::startRecording()
{
    lastTick_ = clock_();
    setMode(Mode::Recording);
    emit frame();
}

void Transport::endRecording()
{
    setMode(Mode::Stopped);
    emit frame();
}

void Transport::setMode(Mode mode)
{
    mode_ = mode;
    emit modeChanged();
}

void Transport::tick()
{
    // The plan is cancelled before the clock is read, so that the position is never behind what has
    // sounded.
    if (playback_.isPlanShort(clock_()))
        playback_.cancelPlan();
    const double now = clock_();
    if (mode_ == Mode::Playing)
        playUntil(now);
    if (mode_ == Mode::Recording)
        emit recording(lastTick_, now);
    lastTick_ = now;
    // The timer stops after the tick that ends playing, so that tick must show the result.
    if (ticks_++ % kTicksPerFrame == 0 || mode_ == Mode::Stopped)
        emit frame();
}

double Transport::positionAt(double time) const
{
    return position_ + stepsPerSecond() * (time - lastTick_);
}

double Transport::endOfPlaying() const
{
    return interval_.isEmpty() ? extent_ : std::min(interval_.end, extent_);
}

std::optional<Interval> Transport::endlessLoop() const
{
    const Interval loop{interval_.isEmpty() ? 0.0 : interval_.start, endOfPlaying()};
    const bool isLong = loop.end - loop.start > stepsPerSecond() * kTick.count();
    // In the plain reading every pass is longer by the rest of a tick.
    return loop_ && reading_ == Reading::Musical && isLong && position_ <= loop.end
               ? std::optional(loop)
               : std::nullopt;
}

double Transport::playPasses(double next)
{
    const auto loop = endlessLoop();
    while (loop && next > loop->end) {
        playback_.playBetween(position_, loop->end);
        playback_.wrap(loop->start, loop->end);
        position_ = loop->start;
        next -= loop->end - loop->start;
    }
    return next;
}

void Transport::playUntil(double now)
{
    double next = playPasses(positionAt(now));
    if (next <= endOfPlaying()) {
        if (const auto lastKey = playback_.playBetween(position_, next))
            // See docs/decisions.md, 91.
            cursor_ = static_cast<int>(*lastKey);
        scrollTo(next);
    } else {
        playback_.silenceAll();
        next = interval_.isEmpty() ? 0.0 : interval_.start;
        scrollTo(next);
        if (!loop_)
            play();
    }
    playback_.finishPlan();
    if (mode_ != Mode::Playing)
        return;
    if (const auto loop = endlessLoop())
        playback_.planLoop(next, now, stepsPerSecond(), loop->start, loop->end);
    else
        playback_.planAhead(next, now, stepsPerSecond(), endOfPlaying());
}

void Transport::settle()
{
    if (!playback_.cancelPlan())
        return;
    const double now = clock_();
    const double later = playPasses(positionAt(now));
    const double next = std::max(position_, std::min(later, endOfPlaying()));
    playback_.playBetween(position_, next);
    playback_.finishPlan();
    position_ = next;
    lastTick_ = now;
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
    emit moved();
}

void Transport::scrollTo(double step)
{
    position_ = step;
    if (interval_.isEmpty())
        revealPosition();
}

void Transport::advance(double seconds)
{
    position_ += stepsPerSecond() * seconds;
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

void Transport::setTempo(double tempo)
{
    settle();
    tempo_ = tempo;
    emit optionsChanged();
}

void Transport::setLoop(bool loop)
{
    settle();
    loop_ = loop;
    emit optionsChanged();
}

} // namespace velmora
