#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora {

/// What received MIDI does to the application. Called on the receive thread of the MIDI service.
class LiveInput {
public:
    virtual ~LiveInput() = default;

    /// A key was pressed; velocity from 0 to 1. A malformed message can bring a key up to 255 and
    /// a velocity up to 255/127: keys beyond 127 are to be ignored, and velocities above 1 to be
    /// taken for 1.
    virtual void keyOn(int key, float velocity) = 0;

    /// A key was released. As for `keyOn`, keys beyond 127 are to be ignored.
    virtual void keyOff(int key) = 0;

    /// A controller moved the volume slider of a stop, 0 to 4; `volume` ranges as velocities do.
    virtual void setVolume(float volume, std::size_t slider) = 0;

    /// The held keys have changed: once for all that arrived together.
    virtual void midiInput() = 0;
};

/// The bytes of one or more whole MIDI messages.
using MidiPacket = std::span<const std::uint8_t>;
using MidiPacketList = std::span<const MidiPacket>;

/// Turns what arrived together into calls on `input`, in the order of the bytes.
///
/// All channels are one keyboard. Controllers 7, 11, 76, 77 and 78 are the volumes of the stops 0
/// to 4; any status that is neither a note nor channel pressure is read as a controller of three
/// bytes. A message that begins with a data byte, as under running status, releases the key of that
/// number. A message cut short by the end of its packet does nothing. Neither allocates nor throws.
void midiRead(MidiPacketList packets, LiveInput& input);

} // namespace velmora
