#include "base/Clock.h"

#include <chrono>

namespace velmora {

double getTime()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

} // namespace velmora
