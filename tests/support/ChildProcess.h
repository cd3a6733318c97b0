#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace velmora {

/// Forks the test, calls `work(ready)` in the child, and kills the child `microseconds` after it
/// has called `ready`.
template <class Work> void killWhileWorking(Work work, unsigned microseconds = 0)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        work([&] { EXPECT_EQ(::write(ends[1], "x", 1), 1); });
        _exit(1);
    }
    ::close(ends[1]);
    char byte = 0;
    EXPECT_EQ(::read(ends[0], &byte, 1), 1);
    ::close(ends[0]);
    usleep(microseconds);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
}

} // namespace velmora
