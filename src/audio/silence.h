#pragma once

#include <cmath>

namespace velmora {

/// Returns true if a sample is above −120 dBFS.
inline bool isAudible(float sample)
{
    return std::fabs(sample) > 1e-6F;
}

} // namespace velmora
