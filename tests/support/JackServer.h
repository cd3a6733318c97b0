#pragma once

#include <sys/types.h>

#include <string>

namespace velmora {

/// A JACK server with the dummy driver (48 kHz, periods of 128 frames), which this process and its
/// children use for as long as this lives. Made before the first use of libjack and of threads.
class JackServer {
public:
    /// Returns once the server answers. Throws std::runtime_error where it does not within 20 s.
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
