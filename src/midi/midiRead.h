#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

/// The operations that received MIDI can trigger. They are called on a MIDI receive thread.
class LiveInput {
public:
    virtual ~LiveInput() = default;

    /// A key was pressed with a velocity from 0 to 1. A malformed message can have a key up to 255
    /// and a velocity up to 255/127. Implementations must ignore keys above 127 and treat
    /// velocities above 1 as 1.
    virtual void keyOn(int key, float velocity) = 0;

    /// A key was released. Implementations must ignore keys above 127.
    virtual void keyOff(int key) = 0;

    /// A controller moved the volume slider of a stop, 0 to 4. `volume` has the range of
    /// velocities.
    virtual void setVolume(float volume, std::size_t slider) = 0;

    /// The held keys have changed. Called once for a packet list.
    virtual void midiInput() = 0;
};

/// The bytes of one or more whole MIDI messages.
using MidiPacket = std::span<const std::uint8_t>;
using MidiPacketList = std::span<const MidiPacket>;

/// Returns the volume slider, 0 to 4, that a controller moves.
std::optional<std::size_t> sliderOf(std::uint8_t controller);

/// Parses packets that arrived together and calls `input` in the order of the bytes. All channels
/// are treated as one keyboard. Neither allocates nor throws.
///
/// Controllers 7, 11, 76, 77 and 78 set the volumes of the stops 0 to 4. Every message that is
/// neither a note nor channel pressure is read as a controller message of three bytes. A message
/// that starts with a data byte, as under running status, releases the key of that number. A
/// message that is truncated by the end of its packet is ignored.
void midiRead(MidiPacketList packets, LiveInput& input);

} // namespace velmora
