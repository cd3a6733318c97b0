#pragma once

#include "audio/FractionalResampler.h"

#include <fluidsynth.h>

#include <array>
#include <bitset>
#include <cstddef>
#include <memory>

namespace velmora {

/// A General MIDI synthesizer of one channel, whose pitch can be shifted exactly.
///
/// FluidSynth rounds pitches down to whole cents. A lane therefore shifts its synthesizer by whole
/// cents and resamples the output by the remainder, at most half a cent. After construction it must
/// only be used on the thread that renders.
class SynthesizerLane {
public:
    /// Creates a lane, optionally with the bank of another lane, which must outlive it. `rate` is
    /// in hertz; above 96000, the highest that FluidSynth supports, the lane runs at a fraction of
    /// it. Throws std::runtime_error if it is below 8000, the lowest.
    SynthesizerLane(double rate, SynthesizerLane* bankOwner = nullptr);
    ~SynthesizerLane();
    SynthesizerLane(const SynthesizerLane&) = delete;
    SynthesizerLane& operator=(const SynthesizerLane&) = delete;

    /// Sets the rate of the output, at the same pitch. What the synthesizer plays above half of a
    /// lower rate is heard as other tones.
    void setRate(double rate);

    /// Loads the SoundFont that the lanes share. Returns false if FluidSynth cannot read it.
    bool loadBank(const char* path);

    /// Starts a note. It begins with the next frame if the lane is idle, otherwise with the next
    /// block of the synthesizer.
    void noteOn(int key, int velocity);

    /// Releases a note. Does nothing if it has not been started.
    void noteOff(int key);

    void controlChange(int number, int value);
    void programChange(int program);

    /// Silences every note at once.
    void allSoundsOff();

    /// Shifts the pitch of all notes, including those that sound, from the next block of the
    /// synthesizer on.
    void setCents(double cents) { cents_ = cents; }

    /// Takes over the program, the controllers and the pitch of another lane.
    void follow(const SynthesizerLane& other);

    /// True if nothing sounds. An idle lane takes no time to mix.
    bool isIdle() const { return silentBlocks_ >= kSilentBlocksToIdle; }

    /// The number of voices in the latest block.
    std::size_t voices() const { return isIdle() ? 0 : voices_; }

    /// Adds `frames` frames to `left` and `right`.
    void mix(float* left, float* right, std::size_t frames);

private:
    template <class T> using Owned = std::unique_ptr<T, void (*)(T*)>;

    /// The second silent block in a row pushes the last sound out of the resampler.
    static constexpr int kSilentBlocksToIdle = 2;

    /// Controllers that keep their value; the higher numbers are commands.
    static constexpr std::size_t kControllers = 120;

    void readControllers();
    void applyCents();

    /// Adds the next block of the synthesizer.
    void process(float* left, float* right);

    /// Writes the next block, or silence if there are no voices.
    void renderBlock(float* left, float* right);

    double synthRate_; ///< In hertz; fixed, because FluidSynth cannot change it.
    double divisor_;   ///< The output's rate divided by the synthesizer's.
    Owned<fluid_settings_t> settings_;
    Owned<fluid_synth_t> synth_;
    fluid_sfont_t* borrowedBank_ = nullptr;
    FractionalResampler resampler_;
    int silentBlocks_ = kSilentBlocksToIdle;
    std::size_t voices_ = 0;
    int notesInBlock_ = 0; ///< Started since the latest block.

    std::bitset<128> held_; ///< The keys whose notes have not been released.
    double cents_ = 0.0, appliedCents_ = 0.0;
    std::array<int, kControllers> controllers_{};
    int bank_ = 0, program_ = 0; ///< The bank is that of the time when the program was selected.
};

} // namespace velmora
