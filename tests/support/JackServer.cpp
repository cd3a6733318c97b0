#include "support/JackServer.h"

#include "platform/quiet.h"

#include <jack/jack.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace {

bool answers()
{
    jack_client_t* client = jack_client_open("velmora-test", JackNoStartServer, nullptr);
    return client != nullptr && jack_client_close(client) == 0;
}

} // namespace

JackServer::JackServer() : name_("velmora-test-" + std::to_string(getpid()))
{
    quietSoundLibraries();
    setenv("JACK_DEFAULT_SERVER", name_.c_str(), 1);
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    // A test that crashes leaves no server behind.
    process_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    // Synchronous: on a busy machine periods come late, but nothing that is in them gets lost.
    process_.start("jackd", {"-S", "-r", "--no-mlock", "-n", QString::fromStdString(name_), "-d",
                             "dummy", "-r", "48000", "-p", "128"});
    for (int i = 0; !process_.waitForStarted() || !answers(); ++i) {
        if (i == 400 || process_.state() == QProcess::NotRunning)
            throw std::runtime_error("jackd does not answer");
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

JackServer::~JackServer()
{
    process_.terminate();
    if (!process_.waitForFinished(3000))
        process_.kill();
    process_.waitForFinished();
    // A server that is stopped under its clients leaves their semaphores behind.
    std::error_code ignored;
    for (const auto& file : std::filesystem::directory_iterator("/dev/shm", ignored)) {
        if (file.path().filename().string().find(name_ + "_") != std::string::npos)
            std::filesystem::remove(file, ignored);
    }
    unsetenv("JACK_DEFAULT_SERVER");
}
