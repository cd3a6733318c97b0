#pragma once

#include "sequencer/KeyboardDocument.h"
#include "sequencer/PracticeSession.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"

#include <optional>

namespace velmora {

/// Moves from chord to chord, on command or when the user has struck every key of the chord at the
/// position. Notes within a tenth of a step of the position belong to its chord. Main thread only.
class Practice : public KeyboardDocument {
public:
    /// The arguments must outlive the object. A running session supplies the states of the keys.
    Practice(Transport& transport, const Sequence& sequence, const PracticeSession& session)
        : transport_(transport), sequence_(sequence), session_(session)
    {
    }

    /// Moves the position and the cursor to the previous chord.
    void prevNote();

    /// Moves the cursor to the chord at the position, or to the next one. The position stays.
    void currentNote();

    /// Moves the position and the cursor to the next chord.
    void nextNote();

    /// Shows the held keys and the keys of the chord at the position.
    void showKeys();

    /// Shows the keys, and moves to the next chord if the user has struck every wanted key and no
    /// other.
    void advance();

    /// True if the user has struck the last chord and the position is still there.
    bool isDone() const;

    /// Shows the keys after live input, and advances if the transport is stopped.
    void midiInput() override;
    int stateOfNote(unsigned key) const override
    {
        return session_.isRunning() ? session_.stateOfNote(key) : transport_.playback().states[key];
    }

private:
    Transport& transport_;
    const Sequence& sequence_;
    const PracticeSession& session_;
    std::optional<double> done_; ///< The position of the last chord, once it was struck.
};

} // namespace velmora
