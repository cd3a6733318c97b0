#include "base/Log.h"

#include <spdlog/cfg/env.h>
#include <spdlog/sinks/stdout_color_sinks.h>
#include <spdlog/spdlog.h>

#include <mutex>

namespace velmora {

void Logger::log(spdlog::level::level_enum level, fmt::string_view text,
                 fmt::format_args args) const
{
    if (logger_->should_log(level))
        logger_->log(level, fmt::vformat(text, args));
}

Logger logger(const std::string& folder)
{
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (const auto known = spdlog::get(folder))
        return Logger(*known);
    const auto created = spdlog::stderr_color_mt(folder);
    created->set_pattern("%n: %v");
    return Logger(*created);
}

void setLogLevel(spdlog::level::level_enum level)
{
    spdlog::set_level(level);
    spdlog::cfg::load_env_levels();
}

} // namespace velmora
