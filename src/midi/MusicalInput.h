#pragma once

#include "midi/LearnedControls.h"

#include <cstddef>
#include <cstdint>

namespace velmora {

/// The operations that the musical reading of one MIDI device can trigger. They are called on the
/// device's receive thread. Keys are 0…127 and channels 0…15.
class MusicalInput {
public:
    virtual ~MusicalInput() = default;

    /// A key was pressed with a velocity above 0, at most 1.
    virtual void keyOn(int key, float velocity, int channel) = 0;

    /// A key was released; it may sound on under a pedal.
    virtual void keyOff(int key, int channel) = 0;

    /// A pedal went down or up. Sustain holds every key of its channel, sostenuto those that are
    /// held at that moment.
    virtual void setSustain(bool isDown, int channel) = 0;
    virtual void setSostenuto(bool isDown, int channel) = 0;

    /// The soft pedal of any channel is down, or those of all channels are up.
    virtual void setSoft(bool isDown) = 0;

    /// The pitch wheel was moved; all keys sound that much higher.
    virtual void bend(double cents) = 0;

    /// A controller that has learned nothing was moved to a value from 0 to 127, whatever else it
    /// does. The pitch wheel is number 128 with values up to 16383, the pressure of a channel 129.
    virtual void controlled(int /*number*/, int /*value*/) {}

    /// Every sound must end at once.
    virtual void silence() = 0;

    /// A General MIDI program, 0…127, was selected.
    virtual void setProgram(std::uint8_t program) = 0;

    /// A volume controller that has learned nothing was moved to a value from 0 to 1. Returns false
    /// if it is to move a volume slider, as it is for instruments without a console.
    virtual bool moveConsole(std::uint8_t controller, float value, int channel) = 0;

    /// A controller moved the volume slider of a stop to a volume from 0 to 1.
    virtual void setVolume(float volume, std::size_t slider) = 0;

    /// A learned key switches the volume of a stop between 0 and 1.
    virtual void toggleVolume(std::size_t slider) = 0;

    /// A learned controller moved the master volume to a value from 0 to 1.
    virtual void setMasterVolume(float volume) = 0;

    /// A learned key switches the master volume between 0 and 1.
    virtual void toggleMasterVolume() = 0;

    /// A learned control asks for `Play`, `Record`, `Stop` or `Silence`.
    virtual void perform(LearnedAction::Kind action) = 0;

    /// An action that was waiting for a control has found one.
    virtual void learned(MidiControl control) = 0;

    /// The held keys have changed. Called after the keys of a message.
    virtual void midiInput() = 0;
};

} // namespace velmora
