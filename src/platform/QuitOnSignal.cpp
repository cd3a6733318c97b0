#include "platform/QuitOnSignal.h"

#include "platform/endSignals.h"

#include <QSocketNotifier>

#include <sys/signalfd.h>
#include <unistd.h>

namespace velmora {

namespace {

int openSignals()
{
    const sigset_t ends = endSignals();
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    return signalfd(-1, &ends, SFD_CLOEXEC);
}

} // namespace

QuitOnSignal::QuitOnSignal() : descriptor_(openSignals()) {}

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
