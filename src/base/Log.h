#pragma once

#include <spdlog/common.h>

#include <string>

namespace spdlog {
class logger;
}

namespace velmora {

/// Logs messages of one source folder to standard error. Must not be used on the live path.
///
/// This thin wrapper keeps spdlog's templates, and with them most of fmt, out of the files that
/// log.
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

/// Returns the logger of a source folder, creating it on first use. May be called on any thread.
Logger logger(const std::string& folder);

/// Shows messages of `level` and above, unless the environment variable SPDLOG_LEVEL overrides it.
void setLogLevel(spdlog::level::level_enum level);

} // namespace velmora
