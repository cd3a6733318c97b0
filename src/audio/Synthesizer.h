#pragma once

#include "audio/AudioSource.h"
#include "audio/MusicDevice.h"
#include "audio/PeakLimiter.h"
#include "audio/Reverb.h"
#include "audio/SynthesizerLane.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <vector>

namespace velmora {

/// The General MIDI synthesizer: a lane for each channel that carries notes, a room around their
/// sum, a peak limiter. Messages come from any one thread at a time, the sound is rendered by
/// another; neither waits for the other. Without a bank it takes everything and is silent.
class Synthesizer : public MusicDevice, public AudioSource {
public:
    /// Loads the first of the SoundFonts that can be loaded; one that cannot is logged.
    Synthesizer(double rate, const std::vector<std::filesystem::path>& banks);
    ~Synthesizer() override;

    /// The SoundFont in use; empty when there is none.
    const std::filesystem::path& bank() const { return bank_; }

    /// Takes note on and off, bank select and the other controllers, program change and pitch bend
    /// (±200 cents over ±8192) on the channels 0…8 and 10…12, to be heard in the next block.
    void midiEvent(int status, int data1, int data2) override;

    void render(float* left, float* right, std::size_t frames) override;

private:
    struct Event {
        int status, data1, data2;
    };

    /// One block of a busy chord is dozens of messages; this is for a renderer that has stalled.
    static constexpr std::size_t kQueue = 1 << 14;

    SynthesizerLane* laneOf(std::size_t channel);
    void takeEvents();
    /// Any message but a pitch bend.
    void apply(const Event& event);
    /// Ends what a channel sounds, echoes too.
    void silence(SynthesizerLane& lane);

    std::vector<std::unique_ptr<SynthesizerLane>> lanes_;
    Reverb reverb_;
    PeakLimiter limiter_;
    std::filesystem::path bank_;

    std::array<int, 16> lastBend_; ///< Of each channel, as it was sent.
    std::vector<Event> queue_;
    std::atomic<std::size_t> written_{0}, read_{0};
    std::atomic<bool> overflowed_{false};
};

} // namespace velmora
