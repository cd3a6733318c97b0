#pragma once

#include "audio/AudioSource.h"
#include "audio/MusicDevice.h"
#include "audio/Reverb.h"
#include "audio/SynthesizerLane.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

namespace velmora {

/// The General MIDI synthesizer: a lane for each channel with notes, and reverberation of their
/// sum. Messages may be sent from one thread at a time while another thread renders;
/// neither waits for the other. Without a SoundFont it is silent.
class Synthesizer : public MusicDevice, public AudioSource {
public:
    /// Loads the first of `banks` that can be loaded; logs those that cannot. `rate` is in hertz.
    Synthesizer(double rate, const std::vector<std::filesystem::path>& banks);
    ~Synthesizer() override;

    /// The SoundFont in use; empty if there is none.
    const std::filesystem::path& bank() const { return bank_; }

    /// Plays note-ons, note-offs, controllers, program changes and pitch bends (±200 cents for
    /// ±8192) on the channels 0…8 and 10…12, from the next block on.
    void midiEvent(int status, int data1, int data2) override;

    AudioSource* source() override { return this; }

    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    struct Event {
        int status, data1, data2;
    };

    /// A busy block has dozens of messages; the rest is for a renderer that has stalled.
    static constexpr std::size_t kQueue = 1 << 14;

    SynthesizerLane* laneOf(std::size_t channel);
    void takeEvents();
    /// Applies a message that is not a pitch bend.
    void apply(const Event& event);
    /// Silences a lane and the reverberation.
    void silence(SynthesizerLane& lane);

    std::vector<std::unique_ptr<SynthesizerLane>> lanes_;
    Reverb reverb_;
    std::filesystem::path bank_;

    std::array<int, 16> lastBend_; ///< The last bend sent on each channel.
    std::vector<Event> queue_;
    std::atomic<std::size_t> written_{0}, read_{0};
    std::atomic<bool> overflowed_{false};
};

} // namespace velmora
