#pragma once

#include <cstdint>

namespace velmora {

/// The part of a sound that repeats while its key is held.
struct Loop {
    std::uint32_t begin = 0; ///< Its first frame.
    std::uint32_t end = 0;   ///< The frame behind its last one.

    std::uint32_t length() const { return end - begin; }
    bool operator==(const Loop&) const = default;
};

} // namespace velmora
