#pragma once

namespace velmora {

/// A document whose keys the on-screen keyboard shows. Main thread only.
class KeyboardDocument {
public:
    virtual ~KeyboardDocument() = default;

    /// Returns the state of a key as bit flags `kPressed`, `kWanted` and `kHeld`. A key that is
    /// only pressed is wrong; one that is wanted and held must be struck again.
    virtual int stateOfNote(unsigned key) const = 0;

    /// Call this when the held keys have changed.
    virtual void midiInput() = 0;
};

} // namespace velmora
