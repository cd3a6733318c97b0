#pragma once

namespace velmora {

/// What the on-screen keyboard asks of the document that it shows. On the main thread.
class KeyboardDocument {
public:
    virtual ~KeyboardDocument() = default;

    /// How a key is shown, as a sum of `kPressed`, `kWanted` and `kHeld`: pressed alone it is
    /// wrong, wanted and held it is to be struck again.
    virtual int stateOfNote(unsigned key) const = 0;

    /// The keys that are held have changed.
    virtual void midiInput() = 0;
};

} // namespace velmora
