#pragma once

#include "audio/OpenALDevice.h"
#include "audio/SampleEvent.h"
#include "audio/SampleVoice.h"
#include "platform/PriorityMutex.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
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

/// The samples on one OpenAL device, and those of them that sound. A sample has two sources, so
/// that a restart does not cut off what still sounds: that fades in 5 ms.
///
/// Samples may be added and removed on one thread while another one renders. A mutex lends the
/// rendering thread's priority to the other one for that short time.
class SampleVoices {
public:
    /// The longest block that can be rendered.
    static constexpr std::size_t kBlock = 1024;

    SampleVoices(std::unique_ptr<OpenALDevice> device, double rate);

    /// Makes the device's context current as long as the result exists.
    OpenALDevice::Scope scope() const { return OpenALDevice::Scope(*device_); }

    /// The bytes of the sounds in the device's buffers, which the caller keeps.
    std::size_t bytes = 0;

    /// The gains that a sample can have.
    enum class Gains : std::uint8_t { UpTo1, UpTo16 };

    /// Adds a sample that plays an OpenAL buffer, whose loop it repeats if `loops` is true, and
    /// returns its number. Throws FormatError if there are no sources left.
    std::uint32_t add(unsigned buffer, bool loops = false, Gains gains = Gains::UpTo1);

    /// Removes a sample, which must be silent.
    void remove(std::uint32_t number);

    /// The first OpenAL source of a sample.
    unsigned source(std::uint32_t number) const { return voices_[indexOf(number, 0)].source; }

    /// Prepares for as many voices as may sound together, so that rendering neither allocates nor
    /// hesitates. Must be called after samples have been added, unless `reserve` was.
    void prepare();

    /// Prepares for samples of about so many bytes that will be added while the device renders.
    void reserve(std::size_t expectedBytes);

    void setRate(double rate);

    /// Limits the work on released samples in the blocks that follow.
    void setRelief(Relief relief);

    /// Returns when a sample's event happens that is due at `due`: not before earlier ones.
    double order(std::uint32_t number, double due);

    /// Renders the next `frames` frames into `left()` and `right()`, with those of the `events`, in
    /// the order of their frames, that are for the device with the number `device`.
    void render(std::span<const SampleEvent> events, std::uint32_t device, std::size_t frames);

    const float* left() const { return left_.data(); }
    const float* right() const { return right_.data(); }

    /// The number of voices that sound. May be called on any thread.
    std::size_t sounding() const { return sounding_.load(std::memory_order_relaxed); }

private:
    using Phase = SampleVoice::Phase;

    /// The gain of a group of samples, which glides so that it does not step audibly.
    struct Swell {
        bool isGliding() const { return gain != target; }

        float gain = 1.0F;
        float target = 1.0F;
    };

    static std::uint32_t indexOf(std::uint32_t number, std::uint32_t which)
    {
        return 2 * number + which;
    }

    SampleVoice& current(std::uint32_t number) { return voices_[indexOf(number, second_[number])]; }

    void makeLimit(std::span<const unsigned> sources);
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
    void setPitch(const SampleVoice& voice);
    void setCheap(SampleVoice& voice, bool cheap);

    std::size_t advance(std::size_t done, std::size_t end);
    void fade(std::size_t frames);
    void glide(std::size_t frames);
    void findEnded();

    mutable PriorityMutex mutex_;
    std::unique_ptr<OpenALDevice> device_;
    double rate_;
    float tuning_ = 1.0F; ///< The rate of the device divided by `rate_`.
    std::size_t step_;    ///< The most frames for which a gain changes evenly.

    std::deque<SampleVoice> voices_;  ///< Two for each sample.
    std::deque<std::uint8_t> second_; ///< By sample: 1 if the second voice was started last.
    std::deque<double> dues_;         ///< By sample: when its last event was due.
    std::vector<std::uint32_t> free_; ///< Numbers of removed samples.

    bool isPrepared_ = true;
    bool isReserved_ = false;
    std::size_t limit_ = 0;             ///< The number of voices that may sound together.
    std::vector<std::uint32_t> active_; ///< The voices that sound.
    std::vector<unsigned> starting_;    ///< Sources to be started before the next block.
    std::vector<SampleVoice*> tails_;   ///< Scratch.
    std::size_t nextToCheck_ = 0;
    std::uint64_t age_ = 0;
    std::uint64_t frame_ = 0; ///< That is rendered next. It stands still while nothing sounds.
    float bend_ = 1.0F;
    Relief relief_ = Relief::None;
    std::array<Swell, std::numeric_limits<std::uint8_t>::max() + 1> swells_{};
    bool isGliding_ = false; ///< Some swell is.

    std::array<float, 2 * kBlock> interleaved_{};
    std::array<float, kBlock> left_{}, right_{};
    std::atomic<std::size_t> sounding_{0};
};

} // namespace velmora
