#pragma once

#include "audio/FractionalResampler.h"
#include "audio/Glide.h"
#include "audio/MusicDevice.h"
#include "audio/SoundFontBank.h"
#include "midi/messages.h"

#include <fluidsynth.h>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace velmora {

/// A key of a part.
struct PartKey {
    std::size_t part = 0; ///< 0…kParts − 1.
    int key = 0;          ///< 0…127.

    bool operator==(const PartKey&) const = default;
};

/// A General MIDI synthesizer whose pitch can be shifted exactly. Each part plays a program of its
/// own, and all of them have the same pitch.
///
/// FluidSynth rounds pitches down to whole cents. A lane therefore shifts its synthesizer by whole
/// cents and resamples the output by the remainder, at most half a cent. A part costs nothing until
/// it sounds. After construction a lane must only be used on the thread that renders.
class SynthesizerLane {
public:
    /// The lowest rate of a lane in hertz.
    static constexpr double kLowestRate = 8000.0;

    /// Creates a lane that plays a bank, which must outlive it. `rate` is in hertz; above 96000,
    /// the highest that FluidSynth supports, the lane runs at a fraction of it. Throws
    /// std::runtime_error if it is below `kLowestRate`.
    SynthesizerLane(double rate, const SoundFontBank& bank);
    ~SynthesizerLane();
    SynthesizerLane(const SynthesizerLane&) = delete;
    SynthesizerLane& operator=(const SynthesizerLane&) = delete;

    /// Starts a note, `correction` cents higher than the bank has it. It begins with the next frame
    /// if the lane is idle; otherwise it begins with the next block of the synthesizer, and its
    /// correction is rounded to a whole cent beside those that sound.
    void noteOn(PartKey key, int velocity, double correction);

    /// Releases a note. Does nothing if it has not been started.
    void noteOff(PartKey key);

    /// Raises the notes of a key that sound by whole cents.
    void raise(PartKey key, double cents);

    /// True if a note of that key has been started and not released.
    bool isHeld(PartKey key) const
    {
        return parts_[key.part].held.test(static_cast<std::size_t>(key.key));
    }

    /// The correction that the whole lane has.
    double correction() const { return correction_; }

    void controlChange(std::size_t part, int number, int value);

    /// Moves a controller of a part, or its `midi::kPitchWheel` or `midi::kPressure`.
    void control(std::size_t part, int number, int value);

    /// Selects a program of the bank that was selected last, or the one that is nearest to it, for
    /// the notes of a part that follow.
    void programChange(std::size_t part, int program);

    /// Silences every note at once.
    void allSoundsOff();

    /// Shifts the pitch of the notes that follow by `cents`, and lets those that sound glide there
    /// if they shall, from the next block of the synthesizer on.
    void setCents(double cents, const Glide& glide);

    /// Shifts the pitch of all notes by `cents` besides, from the next block of the synthesizer on.
    void setWheel(double cents) { wheel_ = cents; }

    /// Takes over the pitch of another lane.
    void followPitch(const SynthesizerLane& other);

    /// Takes over the program and the controllers of a part of another lane.
    void followPart(std::size_t part, const SynthesizerLane& other);

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

    /// The bank and the number of a program.
    using Preset = std::pair<int, int>;

    /// What one part plays.
    struct Part {
        std::bitset<128> held; ///< The keys whose notes have not been released.
        std::array<std::int8_t, kControllers> controllers{};
        int wheel = midi::kWheelCentre, pressure = 0;
        int selectedBank = 0;     ///< For the next program.
        Preset preset;            ///< Of the notes that follow.
        Preset loaded = {-1, -1}; ///< What the synthesizer has for the part.
        float fineTune = 0.0F;    ///< What the synthesizer has for the part.
    };

    void readController(std::size_t part, std::size_t number);
    void readControllers(std::size_t part);
    void loadPreset(std::size_t part);
    void tunePart(std::size_t part);

    /// Calls `use(fluid_voice_t*)` for the voices of a key.
    template <class Use> void forVoices(PartKey key, const Use& use);

    double wantedCents() const { return cents_ - kept_ - path_.left() + wheel_ + correction_; }
    void applyCents();

    /// Raises the note that was started last.
    void raiseNewest(PartKey key, double cents);

    /// Adds the next block of the synthesizer.
    void process(float* left, float* right);

    /// Writes the next block, or silence if there are no voices.
    void renderBlock(float* left, float* right);

    double divisor_; ///< The output's rate divided by the synthesizer's.
    double rate_;    ///< Of the synthesizer.
    Owned<fluid_settings_t> settings_;
    Owned<fluid_synth_t> synth_;
    const SoundFontBank& soundFont_;
    FractionalResampler resampler_;
    int silentBlocks_ = kSilentBlocksToIdle;
    std::size_t voices_ = 0;
    int notesInBlock_ = 0; ///< Started since the latest block.

    std::array<Part, kParts> parts_;
    std::bitset<kParts> sounding_; ///< The parts that have started notes since the lane was idle.
    double cents_ = 0.0;           ///< Of new notes.
    double kept_ = 0.0;            ///< How far above the notes that sound that is, for good.
    GlidePath path_;               ///< On which those follow.
    double wheel_ = 0.0;           ///< In cents, of all notes.
    double correction_ = 0.0;      ///< Of the note that started on the idle lane.
    double appliedCents_ = 0.0;
    float fineTune_ = 0.0F; ///< The whole cents of that, as the synthesizer wants them.
};

} // namespace velmora
