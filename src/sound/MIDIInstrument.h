#pragma once

#include "audio/MusicDevice.h"
#include "sound/Instrument.h"

#include <memory>

namespace velmora {

/// Plays a General MIDI synthesizer in any temperament: each pitch class has a MIDI channel of its
/// own, bent to its pitch. Pitch class 0 is the reference and is never bent.
class MIDIInstrument : public Instrument {
public:
    /// Selects the start-up program on the device.
    explicit MIDIInstrument(std::unique_ptr<MusicDevice> device);

    bool hasSubMenu() const override;
    float getVolume(std::size_t stop) const override;
    void setVolume(std::size_t stop, float volume) override;
    std::size_t numStops() const override;
    void play(int key, float velocity) override;
    void stop(int key) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void setInstrument(std::uint8_t program) override;
    void setDue(double time) override { device_->setDue(time); }
    void bend(double cents) override;
    void setSoft(bool soft) override { isSoft_ = soft; }
    AudioSource* source() override { return device_->source(); }

    /// The selected General MIDI program, 0…127.
    std::uint8_t program() const { return program_; }

    /// Replaces the device and selects the current program and bend on the new one, which the
    /// caller must tune. Returns the old device, with whatever still sounds on it.
    std::unique_ptr<MusicDevice> exchangeDevice(std::unique_ptr<MusicDevice> device);

private:
    // See docs/decisions.md, 39.
    static constexpr std::uint8_t kStartUpProgram = 2;

    std::unique_ptr<MusicDevice> device_;
    std::uint8_t program_ = kStartUpProgram;
    float volume_ = 1.0F;
    double bend_ = 0.0; ///< In cents.
    bool isSoft_ = false;
};

} // namespace velmora
