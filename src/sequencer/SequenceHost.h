#pragma once

namespace velmora {

class LiveKeys;

/// The application as the sequencer sees it: plays notes and knows which keys the user holds. May
/// be called on any thread.
class SequenceHost {
public:
    virtual ~SequenceHost() = default;

    /// Starts a key on the current instrument at the pitch of the current temperament. Does nothing
    /// if there is no instrument.
    virtual void play(int key, float velocity) = 0;

    /// Stops a key on the current instrument and on every other one that still sounds it.
    virtual void stop(int key) = 0;

    /// Forces a spelling in the current temperament and plays its key, as `Temperament::isomorph`
    /// does.
    virtual void isomorph(int n) = 0;

    /// The keys of live input.
    virtual LiveKeys& liveKeys() = 0;
};

} // namespace velmora
