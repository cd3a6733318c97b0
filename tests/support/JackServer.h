#pragma once

#include <QProcess>

#include <string>

/// A JACK server of this process's own on the dummy driver, at 48 kHz in periods of 128 frames: as
/// long as it lives, JACK's clients in this process find it and no other.
class JackServer {
public:
    /// Returns once the server answers. Throws std::runtime_error when it does not.
    JackServer();
    ~JackServer();
    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

private:
    std::string name_;
    QProcess process_;
};
