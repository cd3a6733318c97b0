#include "platform/QuitOnSignal.h"

#include "platform/terminationSignals.h"

#include <QSocketNotifier>

#include <sys/signalfd.h>
#include <unistd.h>

namespace velmora {

namespace {

int blockAndOpenSignals()
{
    const sigset_t watched = terminationSignals();
    pthread_sigmask(SIG_BLOCK, &watched, nullptr);
    return signalfd(-1, &watched, SFD_CLOEXEC);
}

} // namespace

QuitOnSignal::QuitOnSignal() : descriptor_(blockAndOpenSignals()) {}

QuitOnSignal::~QuitOnSignal()
{
    notifier_.reset();
    close(descriptor_);
}

void QuitOnSignal::watch(std::function<void()> quit)
{
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, std::move(quit));
}

} // namespace velmora
