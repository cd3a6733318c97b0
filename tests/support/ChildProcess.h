#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>

/// A copy of the test that does its work until it is killed.
class ChildProcess {
public:
    /// Returns once `work` has called what it is given. A child that ends by itself fails the test.
    explicit ChildProcess(const std::function<void(const std::function<void()>& ready)>& work)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(pipe(ends.data()), 0);
        child_ = fork();
        if (child_ == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            work([&] { [[maybe_unused]] const auto told = ::write(ends[1], "x", 1); });
            _exit(1);
        }
        close(ends[1]);
        char byte = 0;
        EXPECT_EQ(::read(ends[0], &byte, 1), 1);
        close(ends[0]);
    }

    ~ChildProcess() { kill(); }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Without any warning.
    void kill()
    {
        if (child_ == 0)
            return;
        ::kill(child_, SIGKILL);
        int status = 0;
        waitpid(child_, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status));
        child_ = 0;
    }

private:
    pid_t child_;
};
