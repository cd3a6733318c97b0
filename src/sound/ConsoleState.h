#pragma once

#include <vector>

namespace velmora {

/// Which stops and couplers of a console are drawn, by their positions in its definition.
struct Registration {
    std::vector<bool> stops;
    std::vector<bool> couplers;

    bool operator==(const Registration&) const = default;
};

/// Everything that an organist sets at a console.
struct ConsoleState {
    Registration drawn;
    std::vector<float> gains;  ///< Of each stop, 0…1.
    std::vector<float> swells; ///< Of each division, from 0 for closed to 1 for open.

    bool operator==(const ConsoleState&) const = default;
};

} // namespace velmora
