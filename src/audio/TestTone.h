#pragma once

#include "audio/AudioSource.h"

#include <atomic>

namespace velmora {

/// A short, quiet tone with which the user tries an output.
class TestTone : public AudioSource {
public:
    /// Plays the tone from the next block on. Called on any thread.
    void play() { isWanted_ = true; }

    void setRate(double rate) override { rate_ = rate; }
    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    std::atomic<bool> isWanted_{false};
    double rate_ = 48000.0;
    double time_ = 0.0; ///< In seconds since the tone began.
    bool sounds_ = false;
};

} // namespace velmora
