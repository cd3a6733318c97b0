#pragma once

#include <csignal>

namespace velmora {

/// As long as it lives, Ctrl-C and a request to terminate wait instead of ending the program, so
/// that it can tidy up. It is made before any other thread is.
class Interruption {
public:
    Interruption();

    /// What has waited until now does nothing more.
    ~Interruption();

    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Whether one of them waits; never where they are let through.
    static bool requested();

private:
    sigset_t before_{};
};

} // namespace velmora
