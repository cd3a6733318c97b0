#pragma once

#include <csignal>

namespace velmora {

/// Returns the signals that ask the program to terminate: SIGINT (Ctrl-C) and SIGTERM.
inline sigset_t terminationSignals()
{
    sigset_t result;
    sigemptyset(&result);
    sigaddset(&result, SIGINT);
    sigaddset(&result, SIGTERM);
    return result;
}

} // namespace velmora
