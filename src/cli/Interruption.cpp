#include "cli/Interruption.h"

#include "platform/terminationSignals.h"

#include <ctime>

namespace velmora {

Interruption::Interruption()
{
    const sigset_t watched = terminationSignals();
    pthread_sigmask(SIG_BLOCK, &watched, &before_);
}

Interruption::~Interruption()
{
    const sigset_t watched = terminationSignals();
    const timespec noWait{};
    while (sigtimedwait(&watched, nullptr, &noWait) > 0) {
    }
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool Interruption::requested()
{
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, SIGINT) == 1 || sigismember(&pending, SIGTERM) == 1;
}

} // namespace velmora
