#pragma once

#include "audio/MusicDevice.h"
#include "base/Reading.h"
#include "sound/Instrument.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// Plays a synthesizer in any temperament: each pitch class has a MIDI channel of its own, bent to
/// its pitch. Percussion is played untempered on its own channel.
///
/// In the plain reading, pitch class 0 is the reference and is never bent. In the musical reading,
/// a temperament that does not repeat every octave, or lies far from equal temperament, is played
/// key by key: each key sounds the key of equal temperament that is nearest to its pitch, and the
/// device makes up the rest.
///
/// Parts play programs of their own in the same temperament, up to a whole ensemble; part 0 is the
/// instrument's own.
class MIDIInstrument : public Instrument {
public:
    /// Plays the General MIDI programs and selects the start-up program on the device.
    explicit MIDIInstrument(std::unique_ptr<MusicDevice> device);

    /// Plays the programs of a bank, at least one, and selects the first.
    MIDIInstrument(std::unique_ptr<MusicDevice> device, std::vector<Program> programs);

    bool hasSubMenu() const override { return isGeneralMidi_; }
    float getVolume(std::size_t stop) const override;
    void setVolume(std::size_t stop, float volume) override;
    std::size_t numStops() const override;
    void play(int key, float velocity) override { playOn(0, key, velocity); }
    void stop(int key) override { stopOn(0, key); }
    void playOn(std::size_t part, int key, float velocity) override;
    void stopOn(std::size_t part, int key) override;
    bool setPart(std::size_t part, const PartSound& sound) override;
    void expectPresets(std::span<const PartSound::Preset> presets) override;
    void controlPart(std::size_t part, int number, int value) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void setInstrument(std::uint8_t program) override;
    void setDue(double time) override { device_->setDue(time); }
    void bend(double cents) override;
    void setGlide(const Glide& glide) override;
    void setSoft(bool soft) override { isSoft_ = soft; }
    AudioSource* source() override { return device_->source(); }
    std::span<const Program> programs() const override { return programs_; }
    void setProgram(std::size_t position) override;
    std::size_t program() const override { return program_; }
    bool isSounding() const override;

    /// Chooses how temperaments are played. The caller must tune the instrument. The reading is
    /// plain at first for General MIDI, and musical for other banks.
    void setReading(Reading reading) { reading_ = reading; }

    /// Returns by how many cents the keys differ from a temperament at most. In the musical reading
    /// that is none.
    double worstError(const Temperament& temperament) const;

    /// The positions of the programs that the instrument and its parts play or will play, each of
    /// them once.
    std::vector<std::size_t> playedPrograms() const;

    /// Corrects a program, given by its position, until the device is replaced.
    void setCorrections(std::size_t program, const KeyCorrections& corrections);

    /// Replaces the device and selects the current program and bend on the new one, which the
    /// caller must tune. Returns the old device, with whatever still sounds on it.
    std::unique_ptr<MusicDevice> exchangeDevice(std::unique_ptr<MusicDevice> device);

private:
    MIDIInstrument(std::unique_ptr<MusicDevice> device, std::vector<Program> programs,
                   std::size_t first, bool isGeneralMidi);

    /// What is selected on the device for a part.
    struct Selected {
        int bank = 0;
        int number = 0;
        bool isPercussion = false;
        std::optional<std::size_t> program; ///< Its position, if it is one of the programs.

        bool operator==(const Selected&) const = default;
    };

    /// A part besides the first one.
    struct Part {
        PartSound sound;
        Selected selected;
    };

    /// How a key was started last.
    struct Started {
        enum class Path : std::uint8_t { Channel, Drum, Key } path = Path::Channel;
        bool mayMove = false;      ///< Has been played since everything was silent.
        std::uint8_t sounding = 0; ///< The key of equal temperament.
        double cents = 0.0;        ///< Where the device was told to move it; NaN if it was not.
    };

    /// Finds the place of each key, and whether the channels can play them all.
    void findPlaces(const Temperament& temperament);

    void bendChannels(const Temperament& temperament);
    void bendChannelsToPlaces();
    void moveKeys(bool all);

    /// Sends a message on all channels.
    void send(int kind, int data1, int data2);

    Selected selectedFor(const std::optional<PartSound::Preset>& preset) const;
    void sendPart(std::size_t part);
    bool isPercussion(std::size_t part) const;

    std::unique_ptr<MusicDevice> device_;
    std::vector<Program> programs_;
    std::vector<KeyCorrections> corrections_; ///< Of each program.
    std::size_t program_;
    bool isGeneralMidi_;
    int bank_ = 0; ///< The one that is selected on the device.
    Reading reading_;
    bool playsByKey_ = false;
    std::array<std::optional<Part>, kParts> parts_; ///< The first one is always empty.
    std::vector<PartSound::Preset> expected_;       ///< What parts will play.
    std::array<std::array<Started, 128>, kParts> started_{};
    std::bitset<kParts> played_;       ///< The parts that were played since everything was silent.
    std::array<double, 128> places_{}; ///< Of the keys, in cents above key 0 of equal temperament.
    float volume_ = 1.0F;
    double bend_ = 0.0; ///< In cents.
    Glide glide_;
    bool isSoft_ = false;
};

} // namespace velmora
