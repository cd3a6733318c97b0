#pragma once

#include "audio/Glide.h"

#include <array>

namespace velmora {

class AudioSource;

/// How many cents higher than its bank has it each key is played.
using KeyCorrections = std::array<float, 128>;

/// A synthesizer that plays MIDI messages immediately.
class MusicDevice {
public:
    virtual ~MusicDevice() = default;

    /// Plays a channel message. `data2` is 0 for messages with one data byte. The value of a pitch
    /// bend, `data1` + 128 × `data2`, may exceed 14 bits; the device clamps it to what it supports.
    /// Bank 128, which seven bits cannot select, stands for the drum kits of a SoundFont.
    virtual void midiEvent(int status, int data1, int data2) = 0;

    /// Sets when the messages that follow are due, as `Instrument::setDue` does.
    virtual void setDue(double /*time*/) {}

    /// Shifts every note by `cents`, in addition to the pitch bends of the channels.
    virtual void bend(double /*cents*/) {}

    /// Chooses how notes that sound take over the bends of the channels that follow. At first they
    /// jump there.
    virtual void setGlide(const Glide& /*glide*/) {}

    /// Corrects the notes that follow, except percussion.
    virtual void setCorrections(const KeyCorrections& /*corrections*/) {}

    /// The device's sound; null if it has none.
    virtual AudioSource* source() { return nullptr; }
};

} // namespace velmora
