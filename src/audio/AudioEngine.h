#pragma once

#include "audio/AudioSource.h"
#include "audio/PeakLimiter.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace velmora {

/// How much of the time of a period it takes to render it.
struct EngineLoad {
    double mean = 0.0;
    double worst = 0.0;
};

/// Mixes all sources of sound, applies the master volume, and limits the peaks of the sum. It is
/// what an output plays.
///
/// Live sound is rendered one period late: what happened during the last period sounds at the same
/// place in this one. Events therefore sound after a constant delay, whenever they arrive within a
/// period.
class AudioEngine : public AudioSource {
public:
    /// `rate` is in hertz.
    explicit AudioEngine(double rate);

    double rate() const { return rate_; }

    /// Sets the rate of the engine and of its sources.
    void setRate(double rate) override;

    /// Starts to play a source, whose rate is set first. Must not be called on the audio thread.
    void add(AudioSource& source);

    /// Stops playing a source. Once this returns, it is no longer used and may be destroyed. Must
    /// not be called on the audio thread. Does nothing if the source is not played.
    void remove(AudioSource& source);

    /// Sets the master volume, a factor from 0 to 1.
    void setVolume(float volume) { volume_ = volume; }
    float volume() const { return volume_; }

    /// Returns the highest absolute sample of each channel since the last call.
    std::array<float, 2> takePeaks();

    /// Returns the load since the last call. It stays 0 while sound is rendered offline.
    EngineLoad takeLoad();

    /// The seconds from an event to its sound: one period and the delay of the limiter.
    double delay() const;

    std::size_t voices() const override;
    bool savesWork() const override;

    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    using Sources = std::vector<AudioSource*>;

    /// The longest block that the sources render at once.
    static constexpr std::size_t kBlock = 1024;

    void play(Sources sources);
    void mix(const Sources& sources, float* left, float* right, std::size_t frames, double start);
    void finish(float* left, float* right, std::size_t frames);
    void measure(double seconds, std::size_t frames);

    /// Held while the rate or the sources change; never by the audio thread.
    mutable std::mutex changing_;
    std::atomic<double> rate_;
    PeakLimiter limiter_;
    std::atomic<std::size_t> limiterDelay_; ///< In frames.
    std::unique_ptr<const Sources> sources_ = std::make_unique<Sources>();
    std::atomic<const Sources*> playing_{sources_.get()}; ///< What the audio thread reads.
    std::atomic<std::uint64_t> blocks_{0};                ///< Odd while a block is rendered.
    std::atomic<float> volume_{1.0F};
    float appliedVolume_ = 1.0F;
    std::array<float, kBlock> left_{}, right_{};

    double load_ = 0.0;                  ///< The load of the previous block.
    std::atomic<std::size_t> period_{0}; ///< Frames in the latest block.
    std::array<std::atomic<float>, 2> peaks_{};
    std::atomic<double> loadSum_{0.0}, worstLoad_{0.0};
    std::atomic<std::size_t> loads_{0};
};

} // namespace velmora
