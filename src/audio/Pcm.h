#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

/// Samples in memory, mono or interleaved stereo: of 16 bits, or floats with a full scale of 1.
struct Pcm {
    std::vector<std::int16_t> samples; ///< Empty if the samples are floats.
    int channels = 1;
    double rate = 0.0; ///< Sample rate in hertz.
    std::vector<float> floats{};

    /// The number of samples of all channels.
    std::size_t size() const { return samples.size() + floats.size(); }

    std::size_t bytes() const
    {
        return samples.size() * sizeof(std::int16_t) + floats.size() * sizeof(float);
    }
};

} // namespace velmora
