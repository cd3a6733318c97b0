#pragma once

#include "sequencer/KeyboardDocument.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"

namespace velmora {

/// Moves from chord to chord, by command or when the player has struck every note of the chord at
/// the position. Notes within a tenth of a step of the position belong to its chord. Main thread
/// only.
class Practice : public KeyboardDocument {
public:
    /// Both must outlive this.
    Practice(Transport& transport, const Sequence& sequence)
        : transport_(transport), sequence_(sequence)
    {
    }

    /// Move the position to the previous or the next chord, or the cursor to the current one.
    void prevNote();
    void currentNote();
    void nextNote();

    /// Shows which keys are held, and which ones the chord at the position wants.
    void showKeys();

    /// Shows the keys, and moves to the next chord if every wanted key and no other was struck.
    void advance();

    /// Shows the keys after live input, and advances if the transport is stopped.
    void midiInput() override;
    int stateOfNote(unsigned key) const override { return transport_.playback().states[key]; }

private:
    Transport& transport_;
    const Sequence& sequence_;
};

} // namespace velmora
