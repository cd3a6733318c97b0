#include "sound/KeyTables.h"

namespace velmora {

std::array<std::atomic<int>, kKeys> noteStates{};
std::array<std::atomic<float>, kKeys> noteVelocities{};
std::array<std::atomic<double>, kKeys> notePressTimes{}, noteReleaseTimes{};

} // namespace velmora
