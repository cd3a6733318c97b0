#pragma once

#include "base/Clock.h"
#include "base/Reading.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/Pace.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequencePlayback.h"
#include "sequencer/SequenceTime.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

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

    /// True if the position moves by itself: while playing, and in a recording that does not wait.
    bool isRunning() const { return mode_ == Mode::Playing || runs_; }

    /// Starts playing, from the start of the selected interval if the position is outside it, or
    /// stops playing. Does nothing while recording.
    void play();

    /// Starts emitting `recording` on every tick. The transport must be stopped.
    void startRecording();

    /// Does the same, but moves the position and plays the sequence along, in a loop if it loops
    /// and an interval is selected. Before that the metronome counts the bars that lead to the
    /// position.
    void startRunningRecording();
    void endRecording();

    /// Advances by the time since the last tick. Call this 1024 times a second unless stopped.
    void tick();

    /// The time of the last tick, in seconds. While the metronome counts in, it is still to come.
    double lastTick() const { return lastTick_; }

    /// How many beats the metronome still has to count before the recording; 0 if it does not
    /// count.
    int beatsToCount() const;

    /// How often the loop has turned since the recording began.
    int turns() const { return turns_; }

    /// When the metronome clicks. It never does in the plain reading.
    const MetronomeSettings& metronome() const { return metronome_; }
    void setMetronome(const MetronomeSettings& settings);

    /// Silences every note that sounds, but keeps the mode.
    void stop();

    /// The play position.
    double position() const { return position_; }

    /// Moves the position without scrolling the view.
    void setPosition(double step);

    /// Moves the position. The view follows unless an interval is selected.
    void scrollTo(double step);

    /// Moves the position by seconds at the current pace, without a signal.
    void advance(double seconds);

    /// Makes playing wait at a step until the hold is moved; nothing lets it go on. If the position
    /// stands at the old hold, it has gone on since `time`, in seconds, which must not be later
    /// than now. While there is a hold, loops are not planned ahead.
    void setHold(std::optional<double> step, double time);

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

    /// The tempos and bars of the piece.
    const MusicalTime& time() const { return time_; }
    void setTime(MusicalTime time);

    /// Changes programs while the sequence plays.
    void setPrograms(ProgramChanges changes);

    /// How fast the piece is played: 1 as it is written, 2 twice as fast.
    double speed() const { return speed_; }
    void setSpeed(double speed);

    /// How the position moves. Valid until the time of the piece changes.
    Pace pace() const;

    /// Returns where the position is at a time in seconds, before or after the last tick, if
    /// nothing ends, stops or repeats it.
    double positionAt(double time) const;

    /// True if playing starts over at the end: from the start of the selected interval, or of the
    /// sequence if nothing is selected.
    bool loops() const { return loop_; }
    void setLoop(bool loop);

    /// Cancels the planned notes and moves the position past those that have already sounded. Call
    /// this before changing anything that the plan depends on.
    void settle();

    /// Call this before notes of the sequence change. Settles, and silences those of `notes` that
    /// sound, because a note that moves or disappears while it sounds might never end.
    void prepareChange(std::span<const std::uint64_t> notes);

    /// Call this after controllers of the sequence have changed. Moves them to where they are now,
    /// if they are played.
    void controllersChanged();

    SequencePlayback& playback() { return playback_; }
    SequenceHost& host() const { return host_; }

signals:
    void modeChanged();

    /// A tick of playing, with its time in seconds. The position is still that of the last tick.
    void playing(double until);

    /// A tick of a recording, with the times of the last tick and of this one in seconds.
    void recording(double from, double until);

    /// The position was moved by anything but a tick, or the selected interval has changed.
    void moved();

    /// The keyboard and the position must be redrawn: on every 16th tick, or on every tick if they
    /// are late, and whenever they change while stopped.
    void frame();

    /// A step should appear at the bottom edge of the roll, or as near to it as possible. It may be
    /// negative.
    void scrolled(double step);

    void extentChanged();

    /// The speed, looping, the metronome or the time of the piece has changed.
    void optionsChanged();

private:
    double endOfPlaying() const;

    /// The part that is played again and again without a gap; nothing if there is none.
    std::optional<Interval> endlessLoop() const;

    /// Plays the passes of a loop that end within `seconds`. Returns the position after them.
    double playPasses(double seconds);

    void playUntil(double now);

    /// Plays up to a time that is not later than now, but not beyond the end, and plans nothing.
    void playOn(double until);
    void showFrame(double now);
    void setMode(Mode mode);
    void takeMetronome();
    void countIn();

    const Reading reading_;
    SequenceHost& host_;
    std::function<double()> clock_;
    SequencePlayback playback_;
    Mode mode_ = Mode::Stopped;
    double position_ = 0.0;
    double lastTick_; ///< In seconds.
    double speed_ = 1.0;
    MusicalTime time_;
    std::optional<double> hold_;
    double extent_ = 0.0;
    Interval interval_;
    bool loop_ = false;
    int cursor_ = 0;
    double nextFrame_ = 0.0; ///< In seconds.
    MetronomeSettings metronome_;
    bool runs_ = false;           ///< True if the position moves by itself while recording.
    std::vector<double> countIn_; ///< The times of the beats that are counted, in seconds.
    int turns_ = 0;
};

} // namespace velmora
