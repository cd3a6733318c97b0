#pragma once

#include "base/Clock.h"
#include "base/Reading.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequencePlayback.h"
#include "sequencer/SequenceTime.h"

#include <QObject>

#include <functional>
#include <optional>

namespace velmora {

/// A stretch of time in steps. Equal ends mean that nothing is selected.
struct Interval {
    double start = 0.0;
    double end = 0.0;

    bool isEmpty() const { return start == end; }
    bool contains(double step) const { return start <= step && step < end; }
};

/// Moves through the time of a sequence and plays its notes on the host. Times are in steps. Main
/// thread only.
class Transport : public QObject {
    Q_OBJECT

public:
    enum class Mode { Stopped, Playing, Recording };

    /// `clock` returns the time in seconds. The host and the sequence must outlive the transport.
    Transport(SequenceHost& host, Sequence& sequence, Reading reading = Reading::Musical,
              std::function<double()> clock = getTime);

    Reading reading() const { return reading_; }

    Mode mode() const { return mode_; }

    /// Starts playing, from the start of the selected interval if the position is outside it, or
    /// stops playing. Does nothing while recording.
    void play();

    /// Starts emitting `recording` on every tick. The transport must be stopped.
    void startRecording();
    void endRecording();

    /// Advances by the time since the last tick. Call this 1024 times a second unless stopped.
    void tick();

    /// The time of the last tick, in seconds.
    double lastTick() const { return lastTick_; }

    /// Silences every note that sounds, but keeps the mode.
    void stop();

    /// The play position.
    double position() const { return position_; }

    /// Moves the position without scrolling the view.
    void setPosition(double step);

    /// Moves the position. The view follows unless an interval is selected.
    void scrollTo(double step);

    /// Moves the position by seconds at the current tempo, without a signal.
    void advance(double seconds);

    /// Asks the view to show the position.
    void revealPosition();

    /// Index of the note that navigation has reached; -1 before the first note. Playing sets it to
    /// the key of the last note that it started: see docs/decisions.md, 91.
    int cursor() const { return cursor_; }
    void setCursor(int cursor) { cursor_ = cursor; }

    /// The selected interval.
    const Interval& interval() const { return interval_; }
    void selectInterval(double start, double end);

    /// The length of the sequence: the end of the last note and 32 more steps.
    double extent() const { return extent_; }
    void setExtent(double extent);

    /// Beats a minute, above 0.
    double tempo() const { return tempo_; }
    void setTempo(double tempo);

    /// The steps of a second at the tempo.
    double stepsPerSecond() const { return velmora::stepsPerSecond(tempo_, reading_); }

    /// True if playing starts over at the end: from the start of the selected interval, or of the
    /// sequence if nothing is selected.
    bool loops() const { return loop_; }
    void setLoop(bool loop);

    /// Cancels the planned notes and moves the position past those that have already sounded. Call
    /// this before changing anything that the plan depends on.
    void settle();

    SequencePlayback& playback() { return playback_; }
    SequenceHost& host() const { return host_; }

signals:
    void modeChanged();

    /// A tick of a recording, with the times of the last tick and of this one in seconds.
    void recording(double from, double until);

    /// The position was moved by anything but a tick, or the selected interval has changed.
    void moved();

    /// The keyboard and the position must be redrawn: on every 16th tick, and whenever they change
    /// while stopped.
    void frame();

    /// A step should appear at the bottom edge of the roll, or as near to it as possible. It may be
    /// negative.
    void scrolled(double step);

    void extentChanged();

    /// The tempo or looping has changed.
    void optionsChanged();

private:
    double positionAt(double time) const;
    double endOfPlaying() const;

    /// The part that is played again and again without a gap; nothing if there is none.
    std::optional<Interval> endlessLoop() const;

    /// Plays the passes of a loop that end before a position. Returns where it lies in the next.
    double playPasses(double next);

    void playUntil(double now);
    void setMode(Mode mode);

    const Reading reading_;
    SequenceHost& host_;
    std::function<double()> clock_;
    SequencePlayback playback_;
    Mode mode_ = Mode::Stopped;
    double position_ = 0.0;
    double lastTick_; ///< In seconds.
    double tempo_ = 120.0;
    double extent_ = 0.0;
    Interval interval_;
    bool loop_ = false;
    int cursor_ = 0;
    unsigned ticks_ = 0;
};

} // namespace velmora
