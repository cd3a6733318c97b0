#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace velmora {

/// Calls `work` in a child process without standard output and error, and returns its result, or
/// nothing if it crashes or takes longer than `limit`. So libraries may hang, crash or change the
/// process. Must be called while the program has only one thread.
std::optional<std::string> runInChild(const std::function<std::string()>& work,
                                      std::chrono::milliseconds limit);

} // namespace velmora
