#pragma once

#include "sequencer/KeyboardDocument.h"
#include "sequencer/Sequence.h"
#include "sequencer/Transport.h"

namespace velmora {

/// Goes from chord to chord: by command, or whenever the player has struck every note of the chord
/// at the position. Notes within a tenth of a step of it belong to the chord. Main thread only.
class Practice : public KeyboardDocument {
public:
    /// Both must outlive this.
    Practice(Transport& transport, const Sequence& sequence)
        : transport_(transport), sequence_(sequence)
    {
    }

    /// Move the position to the chord before or after it, or the cursor to the one at the position.
    void prevNote();
    void currentNote();
    void nextNote();

    /// Shows which keys are held, and which ones the chord at the position wants.
    void showKeys();

    /// Shows the keys, and goes on to the next chord if every wanted key and no other was struck.
    void advance();

    /// Shows the keys after live input. Goes on to the next chord only while stopped.
    void midiInput() override;
    int stateOfNote(unsigned key) const override { return transport_.playback().states[key]; }

private:
    Transport& transport_;
    const Sequence& sequence_;
};

} // namespace velmora
