#pragma once

#include <cstdint>
#include <filesystem>

namespace velmora {

/// Returns how many bytes of memory this program can still take without pushing others out of it:
/// what the system has available, or less if a control group of the program limits it. The
/// system's files are read below `root`. If they say nothing, memory counts as unlimited.
std::uint64_t freeMemory(const std::filesystem::path& root = "/");

} // namespace velmora
