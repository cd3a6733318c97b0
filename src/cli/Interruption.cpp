#include "cli/Interruption.h"

#include "platform/endSignals.h"

#include <ctime>

namespace velmora {

Interruption::Interruption()
{
    const sigset_t numbers = endSignals();
    pthread_sigmask(SIG_BLOCK, &numbers, &before_);
}

Interruption::~Interruption()
{
    const sigset_t numbers = endSignals();
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

} // namespace velmora
