#include "audio/OpenALLoopback.h"

#include <alc.h>
#include <alext.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace velmora {

namespace {

constexpr std::size_t kMixedFrames = 1024;

} // namespace

OpenALLoopback::OpenALLoopback(double rate)
    : device_(OpenALDevice::openLoopback(static_cast<int>(std::lround(rate)))),
      renderSamples_(reinterpret_cast<LPALCRENDERSAMPLESSOFT>(
          alcGetProcAddress(nullptr, "alcRenderSamplesSOFT"))),
      interleaved_(2 * kMixedFrames)
{
    if (!device_ || renderSamples_ == nullptr)
        throw std::runtime_error("OpenAL cannot render at " + std::to_string(std::lround(rate)) +
                                 " Hz");
}

void OpenALLoopback::render(float* left, float* right, std::size_t frames, double /*start*/)
{
    for (std::size_t done = 0; done < frames;) {
        const std::size_t length = std::min(kMixedFrames, frames - done);
        renderSamples_(device_->device(), interleaved_.data(), static_cast<int>(length));
        for (std::size_t i = 0; i < length; ++i) {
            left[done + i] = interleaved_[2 * i];
            right[done + i] = interleaved_[2 * i + 1];
        }
        done += length;
    }
}

} // namespace velmora
