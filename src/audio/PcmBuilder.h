#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora {

/// Gathers what a decoder makes of a sound file, block by block, as 16-bit sound.
class PcmBuilder {
public:
    /// What the header of a file of `fileSize` bytes claims. Throws FormatError unless there are
    /// one or two channels and a rate above 0.
    PcmBuilder(int channels, double rate, std::int64_t frames, std::size_t fileSize);

    /// Adds interleaved samples, rounded to 16 bits: of full scale 2¹⁵, 2³¹ or 1, beyond which they
    /// are clipped. Throws FormatError when there are more than so small a file can hold.
    void add(std::span<const std::int16_t> samples);
    void add(std::span<const std::int32_t> samples);
    void add(std::span<const float> samples);

    /// The whole sound. Throws FormatError when there is none.
    Pcm take();

private:
    void checkSize(std::size_t added) const;

    Pcm pcm_;
    std::size_t fileSize_;
};

} // namespace velmora
