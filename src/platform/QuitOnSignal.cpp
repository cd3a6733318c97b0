#include "platform/QuitOnSignal.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

int openSignals()
{
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
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
