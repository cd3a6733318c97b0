#pragma once

#include <cmath>

namespace velmora {

/// Whether a sample is heard: not below −120 dBFS.
inline bool isHeard(float sample)
{
    return std::fabs(sample) > 1e-6F;
}

} // namespace velmora
