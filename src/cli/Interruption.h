#pragma once

#include <csignal>

namespace velmora {

/// While an object of this class exists, SIGINT and SIGTERM stay pending instead of ending the
/// program, so that it can clean up. Must be created before any other thread.
class Interruption {
public:
    Interruption();

    /// Discards pending signals.
    ~Interruption();

    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// Returns whether one of the signals is pending. False while no object of this class exists.
    static bool requested();

private:
    sigset_t before_{};
};

} // namespace velmora
