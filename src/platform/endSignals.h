#pragma once

#include <csignal>

namespace velmora {

/// The signals that ask the program to end: Ctrl-C and the request to terminate.
inline sigset_t endSignals()
{
    sigset_t numbers;
    sigemptyset(&numbers);
    sigaddset(&numbers, SIGINT);
    sigaddset(&numbers, SIGTERM);
    return numbers;
}

} // namespace velmora
