#pragma once

#include "base/Log.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {

/// Runs `work` and returns what it logs at `level` and above.
template <class Work>
std::string logOf(Work&& work, spdlog::level::level_enum level = spdlog::level::debug)
{
    setLogLevel(level);
    testing::internal::CaptureStderr();
    work();
    setLogLevel(spdlog::level::info);
    return testing::internal::GetCapturedStderr();
}

} // namespace velmora
