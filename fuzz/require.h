#pragma once

#include <cstdlib>

namespace velmora {

/// Reports the input as a failure unless `holds`.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace velmora
