#pragma once

namespace velmora {

class AudioSource;

/// A General MIDI synthesizer that plays MIDI messages immediately.
class MusicDevice {
public:
    virtual ~MusicDevice() = default;

    /// Plays a channel message. `data2` is 0 for messages with one data byte. The value of a pitch
    /// bend, `data1` + 128 × `data2`, may exceed 14 bits; the device clamps it to what it supports.
    virtual void midiEvent(int status, int data1, int data2) = 0;

    /// Sets when the messages that follow are due, as `Instrument::setDue` does.
    virtual void setDue(double /*time*/) {}

    /// Shifts every note by `cents`, in addition to the pitch bends of the channels.
    virtual void bend(double /*cents*/) {}

    /// The device's sound; null if it has none.
    virtual AudioSource* source() { return nullptr; }
};

} // namespace velmora
