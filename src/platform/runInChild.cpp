#include "platform/runInChild.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>

namespace velmora {

namespace {

/// Calls `work`, writes its result to a pipe and ends the process.
[[noreturn]] void runAndExit(const std::function<std::string()>& work, int pipe)
{
    const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    int code = 1;
    try {
        const std::string text = work();
        code = write(pipe, text.data(), text.size()) == std::ssize(text) ? 0 : 1;
    } catch (const std::exception&) {
        code = 1;
    }
    _exit(code);
}

/// Reads until the other end is closed or it is `end`.
std::string readUntil(int file, std::chrono::steady_clock::time_point end)
{
    std::string text;
    std::array<char, 4096> buffer{};
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        pollfd ready{file, POLLIN, 0};
        if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) == 0)
            return text;
        const ssize_t count = read(file, buffer.data(), buffer.size());
        if (count <= 0)
            return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

} // namespace

std::optional<std::string> runInChild(const std::function<std::string()>& work,
                                      std::chrono::milliseconds limit)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    const pid_t child = fork();
    if (child == 0)
        runAndExit(work, ends[1]);
    close(ends[1]);
    const std::string text = readUntil(ends[0], std::chrono::steady_clock::now() + limit);
    close(ends[0]);
    if (child < 0)
        return std::nullopt;
    kill(child, SIGKILL); // in case it hangs; one that has ended keeps its status
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? std::optional(text) : std::nullopt;
}

} // namespace velmora
