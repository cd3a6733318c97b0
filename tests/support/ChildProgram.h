#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

/// A program that runs beside the test, without its output, and is killed at the end.
class ChildProgram {
public:
    explicit ChildProgram(std::vector<std::string> words)
    {
        // The program also ends if the test crashes.
        words.insert(words.begin(), {"setpriv", "--pdeathsig", "KILL"});
        std::vector<char*> arguments;
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        posix_spawn_file_actions_t streams;
        posix_spawn_file_actions_init(&streams);
        for (const int stream : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&streams, stream, "/dev/null", O_WRONLY, 0);
        const int error =
            posix_spawnp(&process_, "setpriv", &streams, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&streams);
        if (error != 0)
            throw std::runtime_error("cannot start " + words[3]);
    }

    ~ChildProgram()
    {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }

    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;

private:
    pid_t process_ = -1;
};

} // namespace velmora
