#pragma once

#include "audio/Pcm.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace velmora {

/// Returns a mono sine wave with a peak of 0.375.
inline Pcm sine(double hertz, double seconds, double rate = 48000.0)
{
    Pcm pcm{{}, 1, rate};
    pcm.samples.resize(static_cast<std::size_t>(std::lround(seconds * rate)));
    for (std::size_t i = 0; i < pcm.samples.size(); ++i)
        pcm.samples[i] = static_cast<std::int16_t>(std::lround(
            12288.0 * std::sin(2.0 * std::numbers::pi * hertz * static_cast<double>(i) / rate)));
    return pcm;
}

} // namespace velmora
