#pragma once

#include "audio/AudioOutput.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace velmora {

/// What an output shares with the thread that plays it. It outlives the output if that thread is
/// stuck in a sound server that hangs.
class Playback {
public:
    /// Plays `source` from the next period on; null for silence. Once this returns, the previous
    /// source is no longer used.
    void setSource(AudioSource* source);

    /// Renders a period that begins at the moment `start`, and counts it. Never waits.
    void render(float* left, float* right, std::size_t frames, double start);

    std::atomic<std::size_t> period{0};
    std::atomic<std::uint64_t> periods{0};
    LostPeriods lostPeriods;
    std::atomic<double> latency{0.0}; ///< In seconds.

private:
    std::mutex mutex_;
    AudioSource* source_ = nullptr;
};

/// An output that tells about itself what its playback, a kind of `Playback`, has counted.
template <class Kind> class PlaybackOutput : public AudioOutput {
public:
    const std::string& driver() const override { return driver_; }
    const std::string& device() const override { return device_; }
    double rate() const override { return rate_; }
    std::size_t period() const override { return playback_->period; }
    double latency() const override { return playback_->latency; }
    std::uint64_t periods() const override { return playback_->periods; }
    const LostPeriods& lostPeriods() const override { return playback_->lostPeriods; }

protected:
    PlaybackOutput(std::string driver, std::string device, double rate)
        : driver_(std::move(driver)), device_(std::move(device)), rate_(rate)
    {
    }

    Kind& playback() { return *playback_; }
    const Kind& playback() const { return *playback_; }

    /// The playback, to be shared with its thread.
    const std::shared_ptr<Kind>& sharedPlayback() const { return playback_; }

private:
    std::string driver_, device_;
    double rate_;
    std::shared_ptr<Kind> playback_ = std::make_shared<Kind>();
};

} // namespace velmora
