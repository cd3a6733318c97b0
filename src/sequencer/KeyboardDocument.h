#pragma once

/// What the on-screen keyboard asks of the document that it shows. On the main thread.
class KeyboardDocument {
public:
    virtual ~KeyboardDocument() = default;

    /// How a key is shown: 0 at rest, 1 pressed but not wanted, 2 wanted or played, 3 wanted and
    /// freshly pressed, 4 held and taken into account, 6 wanted but held from before.
    virtual int stateOfNote(unsigned key) const = 0;

    /// The keys that are held have changed.
    virtual void midiInput() = 0;
};
