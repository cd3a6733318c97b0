#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora {

/// One sound in an OpenAL buffer, which goes with it. Needs a current OpenAL context; the sources
/// that play it must go first.
class Sound {
public:
    /// Throws std::bad_alloc when OpenAL has no memory for it, FormatError when it does not take
    /// it, as without a context.
    explicit Sound(const Pcm& pcm);

    /// `format` is one of OpenAL's 16-bit ones, AL_FORMAT_MONO16 or AL_FORMAT_STEREO16; `rate` is
    /// cut to whole hertz. Throws as above.
    Sound(std::span<const std::int16_t> data, int format, double rate);

    ~Sound();
    Sound(const Sound&) = delete;
    Sound& operator=(const Sound&) = delete;

    /// The OpenAL name of the buffer.
    unsigned buffer() const { return buffer_; }

    /// Bytes of sound given to the buffer.
    std::uint32_t size() const { return size_; }

    std::uint32_t frames() const { return size_ / (2U * static_cast<unsigned>(channels_)); }
    int channels() const { return channels_; }

    /// Frames in a second.
    int rate() const { return rate_; }

private:
    unsigned buffer_ = 0;
    std::uint32_t size_;
    int channels_;
    int rate_;
};

} // namespace velmora
