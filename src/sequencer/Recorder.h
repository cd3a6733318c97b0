#pragma once

#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"
#include "sound/keys.h"

#include <QObject>

#include <bitset>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

/// Turns live keys into notes while the transport records. Main thread only.
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
    void takeKeys(double from, double until);

    /// Returns true if the key is down.
    bool takeKey(std::size_t key, double from, double until);

    /// Returns the state of a key at `until`, and marks a pressed key as held.
    int lookAt(std::size_t key, double from, double until);

    void begin(std::size_t key);
    void lengthen(std::size_t key);

    Transport& transport_;
    Sequence& sequence_;
    unsigned char channel_ = 0;
    bool snapToGrid_ = false;
    double limit_ = 0.0;          ///< The step at which the position stops while no key is held.
    std::bitset<kKeys> heldKeys_; ///< The keys that were held at the last look.

    /// The length before the take of each note that it has changed; empty for a new note.
    std::map<std::uint64_t, std::optional<double>> taken_;
};

} // namespace velmora
