#pragma once

#include "audio/AudioSource.h"
#include "audio/Program.h"
#include "midi/MidiTrack.h"
#include "sound/BendChannels.h"
#include "sound/Instrument.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

/// An instrument that writes what it plays as a Standard MIDI File, which sounds in the temperament
/// on every General MIDI device: each pitch class, or each note of a larger scale, is on a channel
/// of its own, bent to its pitch. What it renders is silence; that moves its time.
class TunedMidiWriter : public Instrument, private AudioSource {
public:
    /// How many notes there are, and which of them could not have their pitch.
    struct Notes {
        std::size_t count = 0;
        std::size_t wrong = 0;   ///< By more than a cent.
        double worstCents = 0.0; ///< The greatest error of those.
    };

    /// `tempo` is in beats a minute; it decides where the beats of the file are, not how fast it
    /// is. `rate` is in frames a second.
    TunedMidiWriter(const Program& program, double tempo, double rate);

    float getVolume(std::size_t stop) const override { return stop == 0 ? 1.0F : 0.0F; }
    void setVolume(std::size_t /*stop*/, float /*volume*/) override {}
    std::size_t numStops() const override { return 1; }
    void play(int key, float velocity) override;
    void stop(int key) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void setGlide(const Glide& glide) override { movesSounding_ = glide.movesSounding; }
    AudioSource* source() override { return this; }

    /// Returns the bytes of the file, which ends now. Nothing may be played afterwards.
    std::string finish();

    const Notes& notes() const { return notes_; }

private:
    /// A key that was struck last on its channel.
    struct Struck {
        int key;     ///< Of the keyboard.
        int written; ///< In the file.
    };

    void render(float* left, float* right, std::size_t frames, double start) override;
    std::uint64_t tick() const;
    void send(int kind, std::size_t channel, int data1, int data2);
    void setUp();
    void writeBend(std::size_t channel);

    Program program_;
    double ticksPerFrame_;
    MidiTrack track_;
    std::uint64_t frames_ = 0;
    bool isOctave_ = true; ///< The temperament repeats in every octave.
    bool movesSounding_ = true;
    std::array<double, kKeys> places_{};
    std::bitset<kKeys> mapped_;
    BendChannels channels_;
    std::array<int, BendChannels::kChannels> writtenBends_{};
    std::array<std::optional<Struck>, BendChannels::kChannels> struck_;
    std::array<std::optional<BendChannels::Voice>, kKeys> voices_; ///< Of the keys that sound.
    Notes notes_;
};

} // namespace velmora
