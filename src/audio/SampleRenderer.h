#pragma once

#include "audio/AudioSource.h"
#include "audio/DueEvents.h"
#include "audio/Glide.h"
#include "audio/SampleVoices.h"
#include "base/LockFreeQueue.h"
#include "platform/WorkerPool.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// Plays the samples of an instrument. They are spread over several OpenAL devices, so that several
/// processors can share the work of many voices.
///
/// Loading and playing are for one thread at a time each. After `reserve`, samples may also be
/// added or removed while an engine plays the renderer; without it, they must not. Playing does not
/// allocate.
class SampleRenderer : public AudioSource {
public:
    SampleRenderer();

    // Loading:

    /// Returns the device with the fewest bytes, to which the next sound should be added. Throws
    /// FormatError if OpenAL cannot open any.
    std::uint32_t emptiestDevice();

    SampleSources& device(std::uint32_t number) { return devices_[number]->sources(); }

    /// Prepares the devices for playing. Must be called after samples have been added.
    void prepare();

    /// Prepares for about so many sounds and bytes that will be added while an engine plays the
    /// renderer. Must be called before anything is added. Throws as above.
    void reserve(std::size_t sounds, std::size_t bytes);

    void setRate(double rate) override;

    // Playing:

    /// Sets when the operations that follow are due, in the seconds of `getTime`; 0 for at once.
    void setDue(double time) { due_ = time; }

    /// Starts a sample; one that sounds starts again. It belongs to the group `swell`.
    void start(SampleId sample, float gain, float pitch, std::uint8_t swell = 0);

    /// Lets a sample die away, or one of `following` follow it: see `SampleEvent::following`.
    void release(SampleId sample, std::span<const FollowingSound> following = {});

    /// Ends a sample at once.
    void cut(SampleId sample);

    /// Chooses how samples that sound take over the pitches that follow. At first they jump there.
    void setGlide(const Glide& glide) { glide_ = glide; }

    /// Changes the pitch factor of a sample that may sound, and of those of `following` that may
    /// have followed it.
    void setPitch(SampleId sample, float pitch, std::span<const FollowingSound> following = {});

    /// Sets a pitch factor for all samples, including those that sound.
    void bend(float pitch);

    /// Lets the gain of a group of samples glide from 1, or where it is, to `gain`.
    void setSwell(std::uint8_t swell, float gain);

    /// Ends every sound at once, and forgets what is due later.
    void end();

    // Rendering:

    void render(float* left, float* right, std::size_t frames, double start) override;

    /// Spares work on released samples while more than 75 % of a period's time is needed.
    void setLoad(double load) override;

    // Meters, for any thread:

    std::size_t voices() const override;
    bool savesWork() const override { return relief() != Relief::None; }

    Relief relief() const { return relief_.load(std::memory_order_relaxed); }

private:
    static constexpr std::size_t kSwells = std::numeric_limits<std::uint8_t>::max() + 1;

    bool openDevice();
    void send(const SampleEvent& event);
    void receive();
    void take(const SampleEvent& event);
    void endAfterOverrun();
    void renderBlock(float* left, float* right, std::size_t frames, double start);

    double rate_;
    double due_ = 0.0;
    Glide glide_;
    std::vector<std::unique_ptr<SampleVoices>> devices_;
    std::size_t sounds_ = 0; ///< That have been added to the devices.
    bool isReserved_ = false;
    std::optional<WorkerPool> workers_;

    LockFreeQueue<SampleEvent> queue_;
    std::atomic<bool> isOverrun_{false};             ///< The queue was full, so events are missing.
    std::atomic<float> bend_{1.0F};                  ///< The last one, which may be among them.
    std::array<std::atomic<float>, kSwells> swells_; ///< The last gains, which may be, too.

    // For the audio thread:
    DueEvents<SampleEvent> pending_;
    std::vector<std::uint32_t> busy_; ///< The devices that take part in the block.
    std::atomic<Relief> relief_{Relief::None};
};

} // namespace velmora
