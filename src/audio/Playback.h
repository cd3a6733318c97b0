#pragma once

#include "audio/AudioSource.h"
#include "audio/LostPeriods.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>

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

} // namespace velmora
