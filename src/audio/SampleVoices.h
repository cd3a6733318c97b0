#pragma once

#include "audio/OpenALDevice.h"
#include "audio/SampleEvent.h"
#include "audio/SampleSources.h"
#include "audio/SampleVoice.h"
#include "audio/Swells.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace velmora {

/// How much work the sound of released samples is spared.
enum class Relief : std::uint8_t {
    None,
    CheapTails, ///< They are resampled by linear interpolation.
    FewerTails, ///< The oldest of them also fade in 5 ms.
};

/// Those samples on one OpenAL device that sound. Apart from the sources and the counts, use it on
/// one thread at a time.
class SampleVoices {
public:
    /// The longest block that can be rendered.
    static constexpr std::size_t kBlock = 1024;

    SampleVoices(std::unique_ptr<OpenALDevice> device, double rate);

    SampleSources& sources() { return sources_; }

    /// Prepares for the samples that have been added, or for which the sources were reserved, so
    /// that rendering neither allocates nor hesitates.
    void prepare();

    void setRate(double rate);

    /// Limits the work on released samples in the blocks that follow.
    void setRelief(Relief relief);

    /// Renders the next `frames` frames into `left()` and `right()`, with those of the `events`, in
    /// the order of their frames, that are for the device with the number `device`.
    void render(std::span<const SampleEvent> events, std::uint32_t device, std::size_t frames);

    const float* left() const { return left_.data(); }
    const float* right() const { return right_.data(); }

    /// The number of voices that sound. May be called on any thread.
    std::size_t sounding() const { return sounding_.load(std::memory_order_relaxed); }

private:
    using Phase = SampleVoice::Phase;

    SampleVoice& current(std::uint32_t number) { return sources_.voice(sources_.current(number)); }
    void apply(const SampleEvent& event);
    void start(const SampleEvent& event);
    void release(const SampleEvent& event);
    void follow(SampleVoice& voice, const FollowingSound& next);
    SampleVoice& begin(std::uint32_t number, double endSeconds);
    void decay(SampleVoice& voice);
    void end(SampleVoice& voice, double seconds);
    void stop(SampleVoice& voice);
    void makeRoom();
    template <class Condition> SampleVoice* oldest(const Condition& condition);
    void endOldestTails();
    void setGain(const SampleVoice& voice);
    void retune(std::uint32_t number, float pitch, double seconds);
    void setPitch(const SampleVoice& voice);
    void setCheap(SampleVoice& voice, bool cheap);

    std::size_t framesInStep(std::size_t most);
    std::size_t advance(std::size_t done, std::size_t end);
    void fade(std::size_t frames);
    void findEnded();

    SampleSources sources_;
    double rate_;
    float tuning_ = 1.0F; ///< The rate of the device divided by `rate_`.
    std::size_t step_;    ///< The most frames for which a gain changes evenly.

    std::vector<std::uint32_t> active_; ///< The voices that sound.
    std::vector<unsigned> starting_;    ///< Sources to be started before the next block.
    std::vector<SampleVoice*> tails_;   ///< Scratch.
    std::size_t nextToCheck_ = 0;
    std::uint64_t age_ = 0;
    std::uint64_t frame_ = 0; ///< That is rendered next. It stands still while nothing sounds.
    float bend_ = 1.0F;
    Relief relief_ = Relief::None;
    Swells swells_;

    std::array<float, 2 * kBlock> interleaved_{};
    std::array<float, kBlock> left_{}, right_{};
    std::atomic<std::size_t> sounding_{0};
};

} // namespace velmora
