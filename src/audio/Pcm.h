#pragma once

#include <cstdint>
#include <vector>

namespace velmora {

/// 16-bit samples in memory, mono or interleaved stereo.
struct Pcm {
    std::vector<std::int16_t> samples;
    int channels = 1;
    double rate = 0.0; ///< Sample rate in hertz.
};

} // namespace velmora
