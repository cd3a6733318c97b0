#pragma once

#include "sequencer/Sequence.h"
#include "sequencer/SequenceHost.h"
#include "sequencer/SequenceIndex.h"
#include "sound/KeyTables.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

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
    void start(std::uint32_t position);
    void stopOnInstrument(std::uint32_t key);
    SequenceIndex& index();
    bool isMarked(std::uint32_t position) const;
    void mark(std::uint32_t position);
    void forgetUnmarked();

    SequenceHost& host_;
    Sequence& sequence_;
    std::optional<SequenceIndex> index_; ///< Made when it is needed.
    /// Where the notes are that play or are active; it may name others besides.
    std::vector<std::uint32_t> marked_;
};
