#pragma once

#include <cstdint>
#include <vector>

namespace velmora {

/// 16-bit sound in memory: frames of one or two channels, interleaved.
struct Pcm {
    std::vector<std::int16_t> samples;
    int channels = 1;
    double rate = 0.0; ///< Frames in a second.
};

} // namespace velmora
