#pragma once

#include "midi/midiRead.h"

#include <cstddef>

namespace velmora {

class AppDelegate;

/// Plays what one MIDI device sends.
class LiveDevice : private LiveInput {
public:
    /// `number` tells the devices apart, from 0.
    LiveDevice(AppDelegate& application, std::size_t number);

    /// Plays one whole message that was received at `time`, in the seconds of `getTime`. Called on
    /// the device's receive thread.
    void receive(MidiPacket message, double time);

    /// Releases the keys and pedals that the device holds. May be called on any thread.
    void releaseKeys();

private:
    void keyOn(int key, float velocity) override;
    void keyOff(int key) override;
    void setVolume(float volume, std::size_t slider) override;
    void midiInput() override;

    AppDelegate& application_;
    std::size_t number_;
    double time_ = 0.0; ///< When the message that is being read was received.
};

} // namespace velmora
