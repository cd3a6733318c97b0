#pragma once

#include "base/Reading.h"
#include "midi/messages.h"
#include "sequencer/AheadPlayer.h"
#include "sequencer/Metre.h"
#include "sequencer/Pace.h"
#include "sequencer/PracticePart.h"
#include "sequencer/ProgramChanges.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequenceIndex.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace velmora {

/// Plays the notes of a sequence on the host, flags those that sound or are at the play position,
/// and keeps the state of each key for the on-screen keyboard. The work of a tick depends on what
/// starts, sounds or ends in it, not on the length of the sequence.
class SequencePlayback {
public:
    SequencePlayback(SequenceHost& host, Sequence& sequence, Reading reading = Reading::Musical)
        : reading_(reading), host_(host), sequence_(sequence)
    {
    }

    /// Call this after every change of notes.
    void sequenceChanged() { index_.reset(); }

    /// Flags the notes of a part, but does not sound them, because the user plays them; nothing
    /// sounds every note again. Call this while nothing is planned.
    void leaveOut(std::optional<PracticePart> part) { leftOut_ = part; }

    /// Starts and ends the notes whose start or end lies between two steps. Returns the key of the
    /// last note that started.
    std::optional<std::uint32_t> playBetween(double from, double to);

    /// Plays the clicks of a metronome with the notes from now on, on the beats of a piece; null
    /// plays none. Call this while nothing is planned.
    void setClicks(const MusicalTime* time, bool divides);

    /// Changes programs with the notes from now on. Call this while nothing is planned.
    void setPrograms(ProgramChanges changes) { programs_ = std::move(changes); }
    const ProgramChanges& programs() const { return programs_; }

    /// Gives the channels that change their program the one that they have at a step.
    void usePrograms(double step);
    /// Moves controllers with the notes from now on, which must outlive their use here. Call this
    /// while nothing is planned.
    void setControllers(const Controllers& controllers) { controllers_ = &controllers; }

    /// Moves the controllers to where they are at a step, and lets those go that the sequence no
    /// longer moves. `stop` lets all of them go.
    void startControllers(double step);

    /// Plays the notes through `player` from now on, on its own thread and the clock of `getTime`;
    /// null plays them in `playBetween` again. The player must outlive its use here.
    void playAhead(AheadPlayer* player);

    /// Plans the notes of the next quarter of a second from `step` at `time`, tick by tick, up to
    /// `end`, and exactly up to `hold`. Until the plan is cancelled, `playBetween` only flags
    /// notes. Does nothing without a player, or if there is a plan.
    void planAhead(double step, double time, const Pace& pace, double end,
                   std::optional<double> hold = {});

    /// Does the same for a loop, at whose end the notes are planned from its start again.
    void planLoop(double step, double time, const Pace& pace, double start, double end);

    /// Flags the notes at the end of a loop as silent, and silences them unless a plan does so.
    /// `playBetween` goes on at the start.
    void wrap(double start, double end);

    /// Call this after `playBetween` has followed a plan that was cancelled.
    void finishPlan();

    /// True if a new plan is due at `time`, because less than half of the current one is left.
    bool isPlanShort(double time) const { return isPlanned_ && time > replanTime_; }

    /// Cancels the plan. Returns false if there is none. Call `playBetween` up to the current
    /// position afterwards: it flags what has sounded already and sounds the rest.
    bool cancelPlan();

    /// Silences a note, if it exists and sounds.
    void silence(std::uint64_t id);

    /// Stops the keys of all notes, even of those that do not sound.
    void silenceAll();

    /// Silences the notes that sound, but keeps the states of their keys.
    void stop();

    /// Flags only the notes that start within `tolerance` of a step as active, and adds `state` to
    /// the states of their keys.
    void markAt(double step, double tolerance, int state);

    /// Flags only the notes at a step as active, whenever they began, and adds `state` to the
    /// states of their keys.
    void markSounding(double step, int state);

    /// The state of each key, as bit flags `kPressed`, `kWanted` and `kHeld`.
    std::array<int, kKeys> states{};

private:
    void stopOnInstrument(std::uint32_t key, int channel);
    void collect(double from, double to, double time);
    std::span<const ProgramChange> programsBetween(double from, double to) const;
    std::span<const ControllerEvent> controllersBetween(double from, double to) const;
    void moveControllers(std::span<const ControllerEvent> events);
    void letControllersGo();
    std::vector<Beat> beatsBetween(double from, double to) const;

    /// Adds the notes and clicks between two steps, each at its own time. `from` is at `time`.
    void planPass(double from, double to, double time, const Pace& pace, double ahead);

    /// Silences everything at the end of a loop, and prepares the pass from its start.
    void turn(double start);

    void clearMarks();
    SequenceIndex& index();
    bool isMarked(std::uint32_t noteIndex) const;
    bool isPlayed(const Note& note) const { return !leftOut_ || !leftOut_->contains(note); }
    void mark(std::uint32_t noteIndex);
    void forgetUnmarked();

    /// Returns the state of a key after a note on it has ended.
    int stateAfter(const Note& ended) const;

    const Reading reading_;
    SequenceHost& host_;
    Sequence& sequence_;
    std::optional<SequenceIndex> index_; ///< Empty until it is needed.
    /// Indices of all notes that play or are active, and possibly of others.
    std::vector<std::uint32_t> marked_;

    const Controllers* controllers_ = nullptr;
    std::array<std::bitset<kControllerNumbers>, midi::kChannels> moved_{}; ///< And not yet let go.
    const MusicalTime* clicksOn_ = nullptr; ///< The piece of the metronome; null for none.
    bool divides_ = false;                  ///< The metronome clicks between the beats.

    ProgramChanges programs_;
    std::optional<PracticePart> leftOut_;
    AheadPlayer* player_ = nullptr;
    bool isPlanned_ = false;
    double planStart_ = 0.0;          ///< In steps.
    double replanTime_ = 0.0;         ///< In seconds; infinite if the plan reaches the end.
    std::optional<double> soundedTo_; ///< The step up to which a cancelled plan was performed.
    double ahead_ = 0.0;              ///< How far the plan's steps have passed the loop's.
    double passStart_ = -std::numeric_limits<double>::infinity(); ///< Where the present pass
                                                                  ///< through the loop began.
    std::vector<KeyAction> actions_;                              ///< The plan under construction.
};

} // namespace velmora
