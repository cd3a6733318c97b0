#pragma once

#include "sequencer/Controllers.h"
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
    std::optional<Grid> grid{}; ///< To which notes snap; nothing if they do not.
    bool punches = false;       ///< Replaces the notes of the channel in the selected interval.
};

/// What was recorded, or what was recorded in one pass through a loop.
struct Take {
    std::vector<Note> notes;
    Controllers controllers;
};

/// A recording through which time runs: every key is recorded where the position was when it was
/// pressed, and nothing waits for the player. In a loop each pass is a take of its own, and the
/// last one stays in the sequence. See docs/decisions.md, 189. Main thread only.
class RunningTake {
public:
    /// Begins to record on a transport that is about to run. The arguments must outlive it.
    RunningTake(Transport& transport, Sequence& sequence, const TakeOptions& options);

    /// Takes the keys and controllers up to the transport's last tick. Returns false at the end of
    /// the interval that is replaced.
    bool take();

    /// Ends the recording. Notes that it was to replace, but has not reached, come back.
    void end();

    /// Each pass of a loop in which anything was played; otherwise the only take.
    const std::vector<Take>& passes() const { return passes_; }

    bool isEmpty() const { return before_.empty() && !hasMoved_; }
    bool contains(std::uint64_t id) const { return before_.contains(id); }

    /// Returns the notes that have changed since the last call as they were before. Recording goes
    /// on.
    std::vector<NoteState> changes();

    /// Returns the controllers that were moved in the last pass, unless they have not changed since
    /// the last call.
    Controllers controllers();

private:
    /// When something was played.
    struct Moment {
        double step;
        int pass;
    };

    Moment momentOf(double time) const;
    void takeControls(double until);
    void takeControl(const ControlEvent& event);

    /// The first step that is recorded in this pass.
    double firstStep() const { return pass_ == 0 ? start_ : interval_.start; }

    void removeReplaced();

    /// Puts notes into the given states, and those of them that sound fall silent first.
    void swap(std::vector<NoteState>& states);

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
    std::uint64_t controlPlace_;
    std::vector<ControlEvent> controls_;
    int pass_ = 0;
    std::array<std::uint64_t, kKeys> openNotes_{}; ///< The note that each key lengthens, or 0.
    std::vector<std::uint64_t> recorded_;          ///< The notes of this pass.
    Controllers controllers_;                      ///< Those of this pass.
    bool hasMoved_ = false;                        ///< They have changed since they were asked for.
    std::vector<Note> replaced_;
    std::map<std::uint64_t, std::optional<Note>> before_; ///< Empty for a new note.
    std::vector<Take> passes_;
};

} // namespace velmora
