#pragma once

#include "audio/AudioSource.h"
#include "audio/MusicDevice.h"
#include "audio/Program.h"
#include "midi/MidiTrack.h"
#include "sound/BendChannels.h"
#include "sound/Instrument.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// An instrument that writes what it plays as a Standard MIDI File, which sounds in the temperament
/// on every General MIDI device: each pitch class, or each note of a larger scale, is on a channel
/// of its own, bent to its pitch. If parts have other programs, any note may be on any channel, and
/// programs change between them. What it renders is silence; that moves its time.
class TunedMidiWriter : public Instrument, private AudioSource {
public:
    /// How many notes there are, and which of them could not have their pitch.
    struct Notes {
        std::size_t count = 0;
        std::size_t wrong = 0;   ///< By more than a cent.
        double worstCents = 0.0; ///< The greatest error of those.
    };

    /// Where the beats of the file are; this does not decide how fast it is.
    struct Beats {
        struct Tempo {
            double beat;
            double perMinute;
        };
        struct Signature {
            double beat;
            std::string data; ///< Of the meta event.
        };

        std::function<double(double seconds)> at; ///< How many have passed at a time.
        std::vector<Tempo> tempos;                ///< In order of time; the first is at 0.
        std::vector<Signature> signatures;        ///< In order of time.
    };

    /// Beats that are all alike.
    static Beats steadyBeats(double perMinute);

    /// `rate` is in frames a second.
    TunedMidiWriter(const Program& program, double rate);

    /// Chooses the beats. Call this once, before anything is played.
    void setBeats(Beats beats);

    float getVolume(std::size_t stop) const override { return stop == 0 ? 1.0F : 0.0F; }
    void setVolume(std::size_t /*stop*/, float /*volume*/) override {}
    std::size_t numStops() const override { return 1; }
    void play(int key, float velocity) override { playOn(0, key, velocity); }
    void stop(int key) override { stopOn(0, key); }
    void playOn(std::size_t part, int key, float velocity) override;
    void stopOn(std::size_t part, int key) override;
    bool setPart(std::size_t part, const PartSound& sound) override;
    void silence() override;
    void tune(const Temperament& temperament, int lo, int hi) override;
    void setGlide(const Glide& glide) override { movesSounding_ = glide.movesSounding; }
    AudioSource* source() override { return this; }

    /// Returns the bytes of the file, which ends now. Nothing may be played afterwards.
    std::string finish();

    const Notes& notes() const { return notes_; }

private:
    /// What a device needs to know of a sound.
    struct Sound {
        PartSound::Preset preset;
        int volume = PartSound::kUsualVolume;

        bool operator==(const Sound&) const = default;
    };

    /// A key that was struck last on its channel.
    struct Struck {
        int key;     ///< Of the keyboard.
        int written; ///< In the file.
    };

    void render(float* left, float* right, std::size_t frames, double start) override;
    std::uint64_t tick() const;
    void send(int kind, std::size_t channel, int data1, int data2);
    void setUp();
    void writeBeatsUntil(std::uint64_t tick);
    void writeSound(std::size_t channel, const Sound& sound);
    void writeBend(std::size_t channel);

    double rate_;
    Beats beats_;
    std::size_t tempos_ = 0, signatures_ = 0; ///< How many of them are written.
    MidiTrack track_;
    Sound own_; ///< That of the instrument itself.
    std::array<Sound, kParts> parts_;
    std::vector<Sound> sounds_; ///< All that have had notes, without those of percussion.
    std::array<Sound, BendChannels::kChannels> writtenSounds_{};
    std::uint64_t frames_ = 0;
    bool isOctave_ = true; ///< The temperament repeats in every octave.
    bool movesSounding_ = true;
    std::array<double, kKeys> places_{};
    std::bitset<kKeys> mapped_;
    BendChannels channels_;
    std::array<int, BendChannels::kChannels> writtenBends_{};
    std::array<std::optional<Struck>, BendChannels::kChannels> struck_;
    /// Of the keys of each part that sound.
    std::array<std::array<std::optional<BendChannels::Voice>, kKeys>, kParts> voices_;
    Notes notes_;
};

} // namespace velmora
