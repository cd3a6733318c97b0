#pragma once

namespace velmora {

/// A General MIDI synthesizer that takes MIDI messages at once.
class MusicDevice {
public:
    virtual ~MusicDevice() = default;

    /// One channel message; `data2` is 0 for a message with a single data byte. The data of a pitch
    /// bend, `data1` + 128 × `data2`, may lie beyond 14 bits: the device goes as far as it can.
    virtual void midiEvent(int status, int data1, int data2) = 0;
};

} // namespace velmora
