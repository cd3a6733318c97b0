#pragma once

#include "sequencer/KeyEvents.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"
#include "sound/keys.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace velmora {

/// What is recorded, and where.
struct TakeOptions {
    unsigned char channel = 0;
    bool snapToGrid = false;
    bool punches = false; ///< Replaces the notes of the channel in the selected interval.
};

/// A recording through which time runs: every key is recorded where the position was when it was
/// pressed, and nothing waits for the player. In a loop each pass is a take of its own, and the
/// last one stays in the sequence. See docs/decisions.md, 189. Main thread only.
class RunningTake {
public:
    /// Begins to record on a transport that is about to run. The arguments must outlive it.
    RunningTake(Transport& transport, Sequence& sequence, const TakeOptions& options);

    /// Takes the keys up to the transport's last tick. Returns false at the end of the interval
    /// that is replaced.
    bool take();

    /// Ends the recording. Notes that it was to replace, but has not reached, come back.
    void end();

    /// The notes of each pass of a loop in which any were played; otherwise those of the take.
    const std::vector<std::vector<Note>>& passes() const { return passes_; }

    bool isEmpty() const { return before_.empty(); }
    bool contains(std::uint64_t id) const { return before_.contains(id); }

    /// Returns the notes that have changed since the last call as they were before. Recording goes
    /// on.
    std::vector<NoteState> changes();

private:
    void removeReplaced();
    void takeEvent(const KeyEvent& event);
    void finishPass();
    void press(const KeyEvent& event, double step);
    void lengthen(std::size_t key, double step);
    void endNotes(double step);

    Transport& transport_;
    Sequence& sequence_;
    const TakeOptions options_;
    const Interval interval_; ///< The loop, or what is replaced; empty if neither.
    const bool loops_;
    const double start_;           ///< The first step that is recorded.
    std::uint64_t place_;          ///< Of the next key event.
    std::vector<KeyEvent> events_; ///< Those that are not due yet, in order of time.
    int pass_ = 0;
    std::array<std::uint64_t, kKeys> openNotes_{}; ///< The note that each key lengthens, or 0.
    std::vector<std::uint64_t> recorded_;          ///< The notes of this pass.
    std::vector<Note> replaced_;
    std::map<std::uint64_t, std::optional<Note>> before_; ///< Empty for a new note.
    std::vector<std::vector<Note>> passes_;
};

} // namespace velmora
