#pragma once

#include "midi/midiRead.h"

#include <cstddef>
#include <string>

namespace velmora {

/// How many MIDI devices can be connected at the same time.
constexpr std::size_t kMidiDevices = 64;

/// A connected MIDI device.
struct MidiDevice {
    /// From 0 to kMidiDevices - 1. A device that returns has the same number as before, unless too
    /// many others have come in the meantime.
    std::size_t number = 0;

    /// Unique among the connected devices: of two that are called "Keys", one is "Keys 2".
    std::string name;

    bool operator==(const MidiDevice&) const = default;
};

/// Takes what MIDI devices send. Must not throw.
class MidiReceiver {
public:
    virtual ~MidiReceiver() = default;

    /// A device was connected. Called before its first message, on any thread, but never for two
    /// devices at once.
    virtual void arrived(const MidiDevice& device) = 0;

    /// A device has vanished. Called after its last message, like `arrived`.
    virtual void departed(const MidiDevice& device) = 0;

    /// A device has sent one complete message, with its running status expanded. `time` is the
    /// moment in the seconds of `getTime`; JACK's messages carry the moment of their frame. Called
    /// on a thread of the device's own; with JACK that is a real-time thread.
    virtual void received(std::size_t device, MidiPacket message, double time) = 0;

    /// A device has sent one complete system exclusive message that is not longer than those that
    /// tune. Called like `received`.
    virtual void receivedExclusive(std::size_t /*device*/, MidiPacket /*message*/) {}
};

} // namespace velmora
