#pragma once

#include "sequencer/KeyEvents.h"
#include "sequencer/RunningTake.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"
#include "sound/keys.h"

#include <QObject>

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

/// Turns live keys into notes while the transport records. Every press and release counts at the
/// time at which it was made, however late the main thread is. Main thread only.
class Recorder : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the recorder.
    Recorder(Transport& transport, Sequence& sequence);

    /// Starts or ends a recording. Does nothing while playing. It waits for the keys, unless the
    /// musical reading has a reason to let time run: the metronome clicks, a loop is recorded again
    /// and again, or the selected interval is replaced.
    void record();

    /// Moves the position. A recording waits there for the next key.
    void waitAt(double step);

    /// The channel of notes that are recorded or drawn.
    unsigned char channel() const { return channel_; }
    void setChannel(unsigned char channel);

    /// The velocity of notes that are drawn, above 0: that of the last note that was recorded,
    /// drawn or made louder. In the plain reading it is always 1.
    float velocity() const { return velocity_; }
    void setVelocity(float velocity);

    /// True if notes that are recorded, drawn or moved snap to the grid, which is one of whole
    /// steps in the plain reading.
    bool snapToGrid() const { return snapToGrid_; }
    void setSnapToGrid(bool snap);

    /// Sets the grid of the musical reading.
    void setGrid(Grid grid) { grid_ = grid; }

    /// Returns the last line of the grid at or before a step, or the first one at or after it; the
    /// step itself if nothing snaps.
    double snapped(double step) const;
    double snappedUp(double step) const;

    /// True if a recording replaces the notes of its channel in the selected interval, and ends
    /// with it.
    bool punches() const { return punches_; }
    void setPunches(bool punches);

    /// True if notes were recorded since the last call of `endTake`.
    bool hasTake() const
    {
        return !taken_.empty() || !moved_.empty() || (running_ && !running_->isEmpty());
    }

    /// True if a note was recorded or lengthened since the last call of `endTake`.
    bool isTaken(std::uint64_t id) const
    {
        return taken_.contains(id) || (running_ && running_->contains(id));
    }

    /// The takes of the last recording in a loop; fewer than two if there is nothing to choose
    /// from.
    const std::vector<Take>& takes() const;

    /// Forgets those takes, unless more are being recorded.
    void forgetTakes();

    /// Returns the controllers that were moved since the last call, if the reading is musical.
    Controllers endControllers();

    /// Ends the current take, but not the recording. Returns the notes of the take as they were
    /// before it.
    std::vector<NoteState> endTake();

signals:
    /// The recording has ended, and the notes are sorted.
    void ended();

    /// The channel, snapping or replacing has changed.
    void optionsChanged();

private:
    bool runs() const;
    void startRunning();
    void finish();
    void take(double from, double until);
    void takeControllers(double until);
    void takeHeldKeys();
    void releaseSilencedKeys();

    /// Moves the position from one time to another, in seconds.
    void run(double from, double until);

    /// Takes a press that becomes known at `time`, in seconds.
    void press(const KeyEvent& event, double time);

    /// Takes a release that came `delay` seconds before the position.
    void release(std::size_t key, double delay);

    double positionBefore(double delay) const;
    void begin(std::size_t key, float velocity, double position);
    void lengthen(std::size_t key, double position);
    double snappedLength(double start, double end) const;

    Transport& transport_;
    Sequence& sequence_;
    unsigned char channel_ = 0;
    float velocity_ = 1.0F;
    bool snapToGrid_ = false;
    Grid grid_ = Grid::ThirtySeconds;
    bool punches_ = false;
    std::optional<RunningTake> running_; ///< The last recording, if time ran through it.
    double limit_ = 0.0;    ///< The step at which the position stops while no key is held.
    double runStart_ = 0.0; ///< The step from which the position has moved without a stop.
    std::optional<double> stoodSince_; ///< Since when the position waits; nothing if it moves.

    std::uint64_t place_ = 0;      ///< Of the next key event.
    std::vector<KeyEvent> events_; ///< Those that are not due yet, in order of time.
    std::uint64_t controlPlace_ = 0;
    std::vector<ControlEvent> controls_;
    Controllers moved_;
    std::bitset<kKeys> heldKeys_;                  ///< The keys that are down.
    std::array<std::uint64_t, kKeys> openNotes_{}; ///< The note that each key lengthens, or 0.

    /// The length before the take of each note that it has changed; empty for a new note.
    std::map<std::uint64_t, std::optional<double>> taken_;
};

} // namespace velmora
