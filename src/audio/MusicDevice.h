#pragma once

namespace velmora {

/// A General MIDI synthesizer that plays MIDI messages immediately.
class MusicDevice {
public:
    virtual ~MusicDevice() = default;

    /// Plays a channel message. `data2` is 0 for messages with one data byte. The value of a pitch
    /// bend, `data1` + 128 × `data2`, may exceed 14 bits; the device clamps it to what it supports.
    virtual void midiEvent(int status, int data1, int data2) = 0;
};

} // namespace velmora
