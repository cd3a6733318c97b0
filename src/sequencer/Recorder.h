#pragma once

#include "sequencer/KeyEvents.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"
#include "sound/keys.h"

#include <QObject>

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

/// Turns live keys into notes while the transport records. Every press and release counts at the
/// time at which it was made, however late the main thread is. Main thread only.
class Recorder : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the recorder.
    Recorder(Transport& transport, Sequence& sequence);

    /// Starts or ends a recording. Does nothing while playing.
    void record();

    /// Moves the position. A recording waits there for the next key.
    void waitAt(double step);

    /// The channel of notes that are recorded or drawn.
    unsigned char channel() const { return channel_; }
    void setChannel(unsigned char channel);

    /// True if notes that are recorded, drawn or moved snap to whole steps.
    bool snapToGrid() const { return snapToGrid_; }
    void setSnapToGrid(bool snap);

    /// True if notes were recorded since the last call of `endTake`.
    bool hasTake() const { return !taken_.empty(); }

    /// True if a note was recorded or lengthened since the last call of `endTake`.
    bool isTaken(std::uint64_t id) const { return taken_.contains(id); }

    /// Ends the current take, but not the recording. Returns the notes of the take as they were
    /// before it.
    std::vector<NoteState> endTake();

signals:
    /// The recording has ended, and the notes are sorted.
    void ended();

    /// The channel or snapping has changed.
    void optionsChanged();

private:
    void take(double from, double until);
    void collectEvents();
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

    Transport& transport_;
    Sequence& sequence_;
    unsigned char channel_ = 0;
    bool snapToGrid_ = false;
    double limit_ = 0.0;    ///< The step at which the position stops while no key is held.
    double runStart_ = 0.0; ///< The step from which the position has moved without a stop.
    std::optional<double> stoodSince_; ///< Since when the position waits; nothing if it moves.

    std::uint64_t place_ = 0;      ///< Of the next key event.
    std::vector<KeyEvent> events_; ///< Those that are not due yet, in order of time.
    std::bitset<kKeys> heldKeys_;  ///< The keys that are down.
    std::array<std::uint64_t, kKeys> openNotes_{}; ///< The note that each key lengthens, or 0.

    /// The length before the take of each note that it has changed; empty for a new note.
    std::map<std::uint64_t, std::optional<double>> taken_;
};

} // namespace velmora
