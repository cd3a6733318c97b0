#pragma once

#include "audio/FractionalResampler.h"

#include <fluidsynth.h>

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
    /// Creates a lane, optionally with the bank of another lane, which must outlive it. Throws
    /// std::runtime_error if `rate` is outside the range of FluidSynth, 8000 to 96000 Hz.
    SynthesizerLane(double rate, SynthesizerLane* bankOwner = nullptr);
    ~SynthesizerLane();
    SynthesizerLane(const SynthesizerLane&) = delete;
    SynthesizerLane& operator=(const SynthesizerLane&) = delete;

    /// Loads the SoundFont that the lanes share. Returns false if FluidSynth cannot read it.
    bool loadBank(const char* path);

    void noteOn(int key, int velocity);
    void noteOff(int key);
    void controlChange(int number, int value);
    void programChange(int program);

    /// Silences every note at once.
    void allSoundsOff();

    /// Shifts the pitch of all notes, including those that sound.
    void setCents(double cents);

    /// Adds `frames` frames to `left` and `right`. Takes no time if the lane has been silent for a
    /// while.
    void mix(float* left, float* right, std::size_t frames);

private:
    template <class T> using Owned = std::unique_ptr<T, void (*)(T*)>;

    /// Writes the next block of the synthesizer.
    void renderBlock(float* left, float* right);

    Owned<fluid_settings_t> settings_;
    Owned<fluid_synth_t> synth_;
    fluid_sfont_t* borrowedBank_ = nullptr;
    FractionalResampler resampler_;
    std::size_t silentBlocksToSleep_;
    std::size_t silentBlocks_;
};

} // namespace velmora
