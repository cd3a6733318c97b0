#include "cli/ProgressLine.h"

#include <spdlog/fmt/fmt.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

namespace velmora {

ProgressLine::ProgressLine(std::string what)
    : what_(std::move(what)), isTerminal_(isatty(STDERR_FILENO) == 1)
{
}

ProgressLine::~ProgressLine()
{
    if (shown_ >= 0)
        std::fputc('\n', stderr);
}

void ProgressLine::show(double done)
{
    const int percent = static_cast<int>(done * 100.0);
    if (!isTerminal_ || percent == shown_)
        return;
    shown_ = percent;
    fmt::print(stderr, "\r{} {:3} %", what_, percent);
    std::fflush(stderr);
}

} // namespace velmora
