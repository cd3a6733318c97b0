#pragma once

#include "audio/AudioSource.h"
#include "audio/OpenALDevice.h"
#include "audio/PeakLimiter.h"

#include <memory>
#include <vector>

namespace velmora {

/// OpenAL without a sound output: what the thread that made it plays comes out block by block,
/// through the same limiter as the synthesizer's sound. Every source and buffer must be gone before
/// it is.
class OpenALLoopback : public AudioSource {
public:
    /// `rate` is in whole hertz. Throws std::runtime_error when OpenAL has no loopback device of
    /// that rate.
    explicit OpenALLoopback(double rate);

    void render(float* left, float* right, std::size_t frames) override;

private:
    std::unique_ptr<OpenALDevice> device_;
    void (*renderSamples_)(ALCdevice_struct* device, void* buffer, int frames);
    std::vector<float> interleaved_;
    PeakLimiter limiter_;
};

} // namespace velmora
