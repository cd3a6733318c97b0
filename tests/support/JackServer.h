#pragma once

#include <sys/types.h>

#include <string>

namespace velmora {

/// A JACK server with the dummy driver (48 kHz, periods of 128 frames). It is the default server of
/// this process and its children. Must be created before libjack is used and before any thread is
/// started.
class JackServer {
public:
    /// A synchronous server waits for its clients, so that no data is lost on a busy machine. But
    /// it also waits five seconds for one that was killed.
    enum class Mode { Synchronous, Asynchronous };

    /// Waits until the server answers. Throws std::runtime_error if it does not within 20 s.
    explicit JackServer(Mode mode = Mode::Synchronous);
    ~JackServer();

    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

    /// Kills the server, as a crash would.
    void crash();

    /// Lets the server hang until `resume`.
    void pause() const;
    void resume() const;

    /// Starts the server again after a crash, without waiting until it answers.
    void restart();

private:
    pid_t start() const;
    /// Returns false if the server did not end properly.
    bool terminate();
    void stop();

    std::string name_;
    Mode mode_;
    pid_t process_ = -1;
};

} // namespace velmora
