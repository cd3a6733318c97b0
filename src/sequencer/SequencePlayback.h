#pragma once

#include "sequencer/AheadPlayer.h"
#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequenceIndex.h"
#include "sound/keys.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

/// Sounds the notes of a sequence on the application's current instrument, flags those that play or
/// are at the play position, and keeps the state of each key for the on-screen keyboard. The work
/// of a tick follows what starts, sounds or ends in it, not the length of the sequence.
class SequencePlayback {
public:
    SequencePlayback(SequenceHost& host, Sequence& sequence) : host_(host), sequence_(sequence) {}

    /// Has to follow every change of notes.
    void sequenceChanged() { index_.reset(); }

    /// Starts and ends what does so from one step to another. The last key that has been started.
    std::optional<std::uint32_t> playBetween(double from, double to);

    /// Who sounds what is planned; null for none. It must outlive its use here.
    void playAhead(AheadPlayer* player);

    /// Plans what is to sound from `step` at `time` on, tick by tick, as far as `end`. Until it is
    /// taken back, `playBetween` flags notes and does not sound them.
    void planAhead(double step, double time, double stepsPerSecond, double end);

    /// Whether a plan has to be made anew soon.
    bool isPlanShort(double time) const { return isPlanned_ && time > plannedUntil_; }

    /// Gives the plan up; false when there is none. To be followed by `playBetween` up to where the
    /// position is now, which catches up with what has sounded and sounds the rest.
    bool takeBack();

    void silence(Note& note);

    /// Silences the key of every note, whether it sounds or not.
    void silenceAll();

    /// Silences the notes that play. Their keys' states stay.
    void stop();

    /// Flags the notes that start within `tolerance` of a step, and no others, and adds `state` to
    /// the states of their keys.
    void markAt(double step, double tolerance, int state);

    /// By key.
    std::array<int, kKeys> states{};

private:
    void stopOnInstrument(std::uint32_t key);
    void collect(double from, double to, double time);
    SequenceIndex& index();
    bool isMarked(std::uint32_t position) const;
    void mark(std::uint32_t position);
    void forgetUnmarked();

    SequenceHost& host_;
    Sequence& sequence_;
    std::optional<SequenceIndex> index_; ///< Made when it is needed.
    /// Where the notes are that play or are active; it may name others besides.
    std::vector<std::uint32_t> marked_;

    AheadPlayer* player_ = nullptr;
    bool isPlanned_ = false;
    double planStart_ = 0.0;          ///< In steps.
    double plannedUntil_ = 0.0;       ///< Until then, in seconds, no other plan is needed.
    std::optional<double> soundedTo_; ///< By a plan that was taken back.
    std::vector<KeySound> sounds_;    ///< Being planned.
};

} // namespace velmora
