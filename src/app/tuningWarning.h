#pragma once

#include <string>

namespace velmora {

class AppDelegate;

/// Says in one sentence in what the current tuning does not sound as it is; empty if it does.
std::string tuningWarning(AppDelegate& application);

} // namespace velmora
