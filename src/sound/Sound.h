#pragma once

#include "audio/Loop.h"
#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

class SampleRenderer;

/// One sound in an OpenAL buffer, which a renderer holds as long as it exists.
class Sound {
public:
    /// Copies the sound to one of the renderer's devices: to that of `beside`, if there is one.
    /// With a loop, it repeats that part until it is ended. Throws std::bad_alloc if OpenAL is out
    /// of memory, and FormatError if it rejects the sound or if there is no device.
    Sound(SampleRenderer& renderer, const Pcm& pcm, std::optional<Loop> loop = {},
          const Sound* beside = nullptr);

    /// `format` is AL_FORMAT_MONO16 or AL_FORMAT_STEREO16; `rate` is truncated to whole hertz.
    /// Throws as above.
    Sound(SampleRenderer& renderer, std::span<const std::int16_t> data, int format, double rate);

    SampleRenderer& renderer() const { return renderer_; }

    /// The number of the renderer's device that holds the buffer.
    std::uint32_t device() const { return device_; }

    /// The OpenAL name of the buffer.
    unsigned buffer() const { return buffer_; }

    /// The size of the sound in bytes.
    std::uint32_t size() const { return size_; }

    std::uint32_t frames() const { return frames_; }
    int channels() const { return channels_; }

    /// Frames per second.
    int rate() const { return rate_; }

    const std::optional<Loop>& loop() const { return loop_; }

private:
    Sound(SampleRenderer& renderer, std::span<const std::byte> data, std::size_t samples,
          int format, int channels, double rate, std::optional<Loop> loop, const Sound* beside);

    SampleRenderer& renderer_;
    std::uint32_t device_ = 0;
    unsigned buffer_ = 0;
    std::uint32_t size_;
    std::uint32_t frames_;
    int channels_;
    int rate_;
    std::optional<Loop> loop_;
};

} // namespace velmora
