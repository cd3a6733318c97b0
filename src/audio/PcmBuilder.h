#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace velmora {

/// Collects the blocks of a decoder.
class PcmBuilder {
public:
    enum class Precision { Bits16, Float };

    /// Starts with the header of a file of `fileSize` bytes; `name` is for the log. `frames` is
    /// negative if the header does not give a length. Throws FormatError unless there are one or
    /// two channels and a rate above 0.
    PcmBuilder(std::string name, int channels, double rate, std::int64_t frames,
               std::size_t fileSize, Precision precision);

    /// Appends interleaved samples of 16 bits, for that precision only. Throws FormatError if there
    /// are more samples than a file of that size can hold.
    void add(std::span<const std::int16_t> samples);

    /// Appends interleaved samples with a full scale of 1, which are rounded to 16 bits and clipped
    /// if that is the precision. Throws as above.
    void add(std::span<const float> samples);

    /// Logs that the decoder has reported an error before the end of the file.
    void logReadError(int status) const;

    /// Returns the whole sound. Throws FormatError if there are no samples.
    Pcm take();

private:
    void checkSize(std::size_t added) const;

    std::string name_;
    Precision precision_;
    Pcm pcm_;
    std::size_t fileSize_;
};

} // namespace velmora
