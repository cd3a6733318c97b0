#include "support/JackServer.h"

#include "platform/quiet.h"

#include <fcntl.h>
#include <jack/jack.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>

namespace velmora {

namespace {

/// Removes the semaphores that are left behind if the server stops before its clients.
void removeSemaphores(const std::string& name)
{
    std::error_code ignored;
    for (const auto& file : std::filesystem::directory_iterator("/dev/shm", ignored)) {
        if (file.path().filename().string().find(name + "_") != std::string::npos)
            std::filesystem::remove(file, ignored);
    }
}

bool answers()
{
    jack_client_t* client = jack_client_open("velmora-test", JackNoStartServer, nullptr);
    if (client == nullptr)
        return false;
    jack_client_close(client);
    return true;
}

} // namespace

JackServer::JackServer(Mode mode) : name_("velmora-test-" + std::to_string(getpid())), mode_(mode)
{
    quietSoundLibraries();
    setenv("JACK_DEFAULT_SERVER", name_.c_str(), 1);
    process_ = start();
    for (int i = 0; process_ > 0 && i < 400; ++i) {
        if (answers())
            return;
        if (waitpid(process_, nullptr, WNOHANG) == process_)
            process_ = -1;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    stop();
    throw std::runtime_error("jackd does not answer");
}

pid_t JackServer::start() const
{
    const pid_t process = fork();
    if (process != 0)
        return process;
    prctl(PR_SET_PDEATHSIG, SIGTERM); // stops the server if the test crashes
    const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(null, stream);
    execlp("jackd", "jackd", mode_ == Mode::Synchronous ? "-S" : "-r", "-r", "--no-mlock", "-n",
           name_.c_str(), "-d", "dummy", "-r", "48000", "-p", "128", static_cast<char*>(nullptr));
    _exit(127);
}

JackServer::~JackServer()
{
    stop();
}

void JackServer::crash()
{
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = -1;
}

void JackServer::pause() const
{
    kill(process_, SIGSTOP);
}

void JackServer::resume() const
{
    kill(process_, SIGCONT);
}

void JackServer::restart()
{
    process_ = start();
}

bool JackServer::terminate()
{
    if (process_ <= 0)
        return false;
    kill(process_, SIGTERM);
    for (int i = 0; i < 60; ++i) {
        int status = 0;
        if (waitpid(process_, &status, WNOHANG) != 0)
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    crash();
    return false;
}

void JackServer::stop()
{
    // A server that does not end properly leaves its name in a list of only eight. The next one of
    // that name takes it over.
    if (!terminate()) {
        process_ = start();
        std::this_thread::sleep_for(std::chrono::milliseconds(600));
        terminate();
    }
    removeSemaphores(name_);
    unsetenv("JACK_DEFAULT_SERVER");
}

} // namespace velmora
