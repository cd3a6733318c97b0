#pragma once

#include <sys/types.h>

#include <string>

namespace velmora {

/// A JACK server with the dummy driver (48 kHz, periods of 128 frames). It is the default server of
/// this process and its children. Must be created before libjack is used and before any thread is
/// started.
class JackServer {
public:
    /// Waits until the server answers. Throws std::runtime_error if it does not within 20 s.
    JackServer();
    ~JackServer();

    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

private:
    void stop();

    std::string name_;
    pid_t process_ = -1;
};

} // namespace velmora
