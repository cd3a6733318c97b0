#pragma once

#include "app/KeyHolders.h"
#include "midi/MidiTranslator.h"

#include <cstddef>

namespace velmora {

class AppDelegate;

/// Plays what one MIDI device sends, in the musical or the plain reading. In the musical reading
/// each channel holds its own keys; in the plain one they are one keyboard.
class LiveDevice : private LiveInput, private MusicalInput {
public:
    /// `number` tells the devices apart, from 0.
    LiveDevice(AppDelegate& application, std::size_t number);

    /// Plays one whole message that was received at `time`, in the seconds of `getTime`. Called on
    /// the device's receive thread.
    void receive(MidiPacket message, double time);

    /// Releases the keys and pedals that the device holds, and centres the pitch wheel. Must not
    /// be called while another thread is in `receive`.
    void releaseKeys();

private:
    // The plain reading:
    void keyOn(int key, float velocity) override { keyOn(key, velocity, 0); }
    void keyOff(int key) override { keyOff(key, 0); }

    // The musical reading:
    void keyOn(int key, float velocity, int channel) override;
    void keyOff(int key, int channel) override;
    void setSustain(bool isDown, int channel) override;
    void setSostenuto(bool isDown, int channel) override;
    void setSoft(bool isDown) override;
    void bend(double cents) override;
    void controlled(int number, int value) override;
    void silence() override;
    void setProgram(std::uint8_t program) override;
    bool moveConsole(std::uint8_t controller, float value, int channel) override;
    void toggleVolume(std::size_t slider) override;
    void setMasterVolume(float volume) override;
    void toggleMasterVolume() override;
    void perform(LearnedAction::Kind action) override;
    void learned(MidiControl control) override;

    // Both:
    void setVolume(float volume, std::size_t slider) override;
    void midiInput() override;

    KeySource source(int channel) const;

    AppDelegate& application_;
    std::size_t number_;
    MidiTranslator translator_;
    bool wasPlain_ = false;
    bool isSoft_ = false, isBent_ = false; ///< By this device.
    double time_ = 0.0;                    ///< When the message that is being read was received.
};

} // namespace velmora
