#include "cli/Interruption.h"

#include <ctime>

namespace {

sigset_t requests()
{
    sigset_t numbers;
    sigemptyset(&numbers);
    sigaddset(&numbers, SIGINT);
    sigaddset(&numbers, SIGTERM);
    return numbers;
}

} // namespace

Interruption::Interruption()
{
    const sigset_t numbers = requests();
    pthread_sigmask(SIG_BLOCK, &numbers, &before_);
}

Interruption::~Interruption()
{
    const sigset_t numbers = requests();
    const timespec atOnce{};
    while (sigtimedwait(&numbers, nullptr, &atOnce) > 0) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool Interruption::requested()
{
    sigset_t waiting;
    sigpending(&waiting);
    return sigismember(&waiting, SIGINT) == 1 || sigismember(&waiting, SIGTERM) == 1;
}
