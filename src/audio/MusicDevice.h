#pragma once

#include "audio/Glide.h"

#include <array>
#include <cstddef>

namespace velmora {

class AudioSource;

/// How many parts a device plays: the instrument itself, the voices of an ensemble, and one for
/// playing along.
constexpr std::size_t kParts = 18;

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

    /// Chooses the part, 0…kParts − 1, whose notes, programs, controllers and corrections follow.
    /// Bends are
    /// those of every part.
    virtual void setPart(std::size_t /*part*/) {}

    /// Moves a controller of the part, or its `midi::kPitchWheel` or `midi::kPressure`.
    virtual void controlPart(int /*number*/, int /*value*/) {}

    /// Shifts every note by `cents`, in addition to the pitch bends of the channels.
    virtual void bend(double /*cents*/) {}

    /// Chooses how notes that sound take over the bends of the channels that follow. At first they
    /// jump there.
    virtual void setGlide(const Glide& /*glide*/) {}

    /// Corrects the notes that follow, except percussion.
    virtual void setCorrections(const KeyCorrections& /*corrections*/) {}

    /// True if the device can give each key a pitch of its own, by the three functions below.
    virtual bool tunesKeys() const { return false; }

    /// Starts the note of a key, 0…127, after releasing the one that it has. The bank's key
    /// `sounding`, 0…127, is played `cents` higher than in equal temperament. Programs, controllers
    /// and corrections are those of channel 0.
    virtual void keyOn(int /*key*/, int /*velocity*/, int /*sounding*/, double /*cents*/) {}

    /// Releases the note of a key.
    virtual void keyOff(int /*key*/) {}

    /// Moves the notes of a key that still sound to so many cents above their keys of the bank,
    /// also those that were started by messages.
    virtual void tuneKey(int /*key*/, double /*cents*/) {}

    /// The device's sound; null if it has none.
    virtual AudioSource* source() { return nullptr; }
};

} // namespace velmora
