#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora {

/// One sound, in an OpenAL buffer that it owns. Needs a current OpenAL context, and must outlive
/// the sources that play it.
class Sound {
public:
    /// Throws std::bad_alloc if OpenAL is out of memory, and FormatError if it rejects the sound or
    /// if there is no context.
    explicit Sound(const Pcm& pcm);

    /// `format` is AL_FORMAT_MONO16 or AL_FORMAT_STEREO16; `rate` is truncated to whole hertz.
    /// Throws as above.
    Sound(std::span<const std::int16_t> data, int format, double rate);

    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    /// The OpenAL name of the buffer.
    unsigned buffer() const { return buffer_; }

    /// The size of the sound in bytes.
    std::uint32_t size() const { return size_; }

    std::uint32_t frames() const { return size_ / (2U * static_cast<unsigned>(channels_)); }
    int channels() const { return channels_; }

    /// Frames per second.
    int rate() const { return rate_; }

private:
    unsigned buffer_ = 0;
    std::uint32_t size_;
    int channels_;
    int rate_;
};

} // namespace velmora
