#pragma once

#include <spdlog/common.h>

#include <string>

namespace spdlog {
class logger;
}

namespace velmora {

/// Writes for one folder of the program to standard error. Never called on the live path.
///
/// It stands between its callers and spdlog, whose templates would bring nearly all of fmt into
/// every file that logs.
class Logger {
public:
    explicit Logger(spdlog::logger& logger) : logger_(&logger) {}

    template <class... Args> void debug(fmt::format_string<Args...> text, const Args&... args) const
    {
        log(spdlog::level::debug, text, fmt::make_format_args(args...));
    }
    template <class... Args> void info(fmt::format_string<Args...> text, const Args&... args) const
    {
        log(spdlog::level::info, text, fmt::make_format_args(args...));
    }
    template <class... Args> void warn(fmt::format_string<Args...> text, const Args&... args) const
    {
        log(spdlog::level::warn, text, fmt::make_format_args(args...));
    }
    template <class... Args> void error(fmt::format_string<Args...> text, const Args&... args) const
    {
        log(spdlog::level::err, text, fmt::make_format_args(args...));
    }

private:
    void log(spdlog::level::level_enum level, fmt::string_view text, fmt::format_args args) const;

    spdlog::logger* logger_;
};

/// The one of `folder`, made at its first use.
Logger logger(const std::string& folder);

/// Shows messages from `level` upwards. The environment variable SPDLOG_LEVEL goes before it.
void setLogLevel(spdlog::level::level_enum level);

} // namespace velmora
