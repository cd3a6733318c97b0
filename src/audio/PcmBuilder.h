#pragma once

#include "audio/DecodingOptions.h"
#include "audio/Pcm.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// Collects the blocks of a decoder.
class PcmBuilder {
public:
    enum class Precision { Bits16, Float };

    /// Starts with the header of a file of `fileSize` bytes; `name` is for the log. `frames` is
    /// negative if the header does not give a length. Throws FormatError unless there are one or
    /// two channels and a rate above 0.
    PcmBuilder(std::string name, int channels, double rate, std::int64_t frames,
               std::size_t fileSize, Precision precision, const DecodingOptions& options = {});

    /// Appends interleaved samples of 16 bits, for that precision only. Throws FormatError if there
    /// are more samples than a file of that size or a buffer of OpenAL can hold, and
    /// MemoryShortage.
    void add(std::span<const std::int16_t> samples);

    /// Appends interleaved samples with a full scale of 1, which are rounded to 16 bits and clipped
    /// if that is the precision. Throws as above.
    void add(std::span<const float> samples);

    /// Logs that the decoder has reported an error before the end of the file. Throws FormatError
    /// if damage is refused.
    void readError(int status) const;

    /// Returns the whole sound. Throws FormatError if there are no samples, or fewer than the
    /// header says and damage is refused.
    Pcm take();

private:
    std::size_t sampleSize() const;
    void makeRoom(std::size_t added);
    void reserve(std::size_t samples);

    std::string name_;
    Precision precision_;
    Pcm pcm_;
    std::size_t fileSize_;
    DecodingOptions options_;
    std::size_t mixed_;       ///< How many samples of the file become one of the sound.
    std::size_t claimed_;     ///< Samples of the file according to its header; 0 if unknown.
    std::size_t decoded_ = 0; ///< Samples of the file so far.
};

} // namespace velmora
