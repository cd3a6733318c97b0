#pragma once

#include "audio/FractionalResampler.h"

#include <fluidsynth.h>

#include <cstddef>
#include <memory>

namespace velmora {

/// A General MIDI synthesizer of one channel, whose pitch can be shifted exactly.
///
/// FluidSynth sounds a voice at a whole number of cents, rounded down. A lane therefore shifts its
/// synthesizer by whole cents and makes up the rest, at most half a cent, by resampling what it
/// sounds. Everything but the construction belongs to the thread that renders.
class SynthesizerLane {
public:
    /// A lane of its own, or one that shares the bank of another, which must outlive it. Throws
    /// std::runtime_error at rates beyond those of FluidSynth, 8000 to 96000 frames in a second.
    SynthesizerLane(double rate, SynthesizerLane* bankOwner = nullptr);
    ~SynthesizerLane();
    SynthesizerLane(const SynthesizerLane&) = delete;
    SynthesizerLane& operator=(const SynthesizerLane&) = delete;

    /// Loads the SoundFont that the lanes share. False when FluidSynth cannot read it.
    bool loadBank(const char* path);

    void noteOn(int key, int velocity);
    void noteOff(int key);
    void controlChange(int number, int value);
    void programChange(int program);

    /// Silences every note at once.
    void allSoundsOff();

    /// Shifts all notes, sounding ones too.
    void setCents(double cents);

    /// Adds `frames` frames to `left` and `right`. A lane that has been silent for a while costs
    /// nothing.
    void mix(float* left, float* right, std::size_t frames);

private:
    template <class T> using Owned = std::unique_ptr<T, void (*)(T*)>;

    /// The next block from the synthesizer.
    void renderBlock(float* left, float* right);

    Owned<fluid_settings_t> settings_;
    Owned<fluid_synth_t> synth_;
    fluid_sfont_t* borrowedBank_ = nullptr;
    FractionalResampler resampler_;
    std::size_t silentBlocksToSleep_;
    std::size_t silentBlocks_;
};

} // namespace velmora
