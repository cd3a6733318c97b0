#include "platform/SignalNotifier.h"

#include <QSocketNotifier>

#include <sys/signalfd.h>
#include <unistd.h>

namespace velmora {

namespace {

int blockAndOpen(const sigset_t& watched)
{
    pthread_sigmask(SIG_BLOCK, &watched, nullptr);
    return signalfd(-1, &watched, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

SignalNotifier::SignalNotifier(const sigset_t& watched) : descriptor_(blockAndOpen(watched)) {}

SignalNotifier::~SignalNotifier()
{
    notifier_.reset();
    close(descriptor_);
}

void SignalNotifier::watch(std::function<void()> received)
{
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated,
                     [descriptor = descriptor_, received = std::move(received)] {
                         signalfd_siginfo signal{};
                         while (read(descriptor, &signal, sizeof signal) > 0)
                             received();
                     });
}

} // namespace velmora
