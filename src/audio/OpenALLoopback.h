#pragma once

#include "audio/AudioSource.h"
#include "audio/OpenALDevice.h"

#include <memory>
#include <vector>

namespace velmora {

/// Renders OpenAL's sound block by block instead of playing it. Its context is current only on the
/// thread that constructs it. All sources and buffers must be deleted before it is destroyed.
class OpenALLoopback : public AudioSource {
public:
    /// `rate` is in hertz and is rounded to a whole number. Throws std::runtime_error if OpenAL
    /// cannot render at that rate.
    explicit OpenALLoopback(double rate);

    void render(float* left, float* right, std::size_t frames, double start) override;

private:
    std::unique_ptr<OpenALDevice> device_;
    void (*renderSamples_)(ALCdevice_struct* device, void* buffer, int frames);
    std::vector<float> interleaved_;
};

} // namespace velmora
