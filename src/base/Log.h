#pragma once

#include <spdlog/logger.h>

#include <string>

/// The logger of one folder of the program, made at its first use; writes to standard error.
/// Never called on the live path.
spdlog::logger& logger(const std::string& folder);

/// Shows messages from `level` upwards. The environment variable SPDLOG_LEVEL goes before it.
void setLogLevel(spdlog::level::level_enum level);
