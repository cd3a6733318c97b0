#include "cli/Interruption.h"

#include <ctime>

namespace {

sigset_t requests()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    return signals;
}

} // namespace

Interruption::Interruption()
{
    const sigset_t signals = requests();
    pthread_sigmask(SIG_BLOCK, &signals, &before_);
}

Interruption::~Interruption()
{
    const sigset_t signals = requests();
    const timespec atOnce{};
    while (sigtimedwait(&signals, nullptr, &atOnce) > 0) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool Interruption::requested()
{
    sigset_t waiting;
    sigpending(&waiting);
    return sigismember(&waiting, SIGINT) == 1 || sigismember(&waiting, SIGTERM) == 1;
}
