#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace velmora {

/// Collects the blocks of a decoder and converts them to 16-bit samples.
class PcmBuilder {
public:
    /// Starts with the header of a file of `fileSize` bytes; `name` is for the log. `frames` is
    /// negative if the header does not give a length. Throws FormatError unless there are one or
    /// two channels and a rate above 0.
    PcmBuilder(std::string name, int channels, double rate, std::int64_t frames,
               std::size_t fileSize);

    /// Appends interleaved samples with a full scale of 2¹⁵, 2³¹ or 1, rounded to 16 bits and
    /// clipped at full scale. Throws FormatError if there are more samples than a file of that size
    /// can hold.
    void add(std::span<const std::int16_t> samples);
    void add(std::span<const std::int32_t> samples);
    void add(std::span<const float> samples);

    /// Logs that the decoder has reported an error before the end of the file.
    void logReadError(int status) const;

    /// Returns the whole sound. Throws FormatError if there are no samples.
    Pcm take();

private:
    void checkSize(std::size_t added) const;

    std::string name_;
    Pcm pcm_;
    std::size_t fileSize_;
};

} // namespace velmora
