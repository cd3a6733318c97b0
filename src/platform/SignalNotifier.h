#pragma once

#include <csignal>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// Calls back in the event loop when the program receives one of some signals, which from now on do
/// nothing else. Must be created before any other thread, because the signals have to be blocked in
/// every thread to be read here.
class SignalNotifier {
public:
    explicit SignalNotifier(const sigset_t& watched);
    ~SignalNotifier();
    SignalNotifier(const SignalNotifier&) = delete;
    SignalNotifier& operator=(const SignalNotifier&) = delete;

    /// Starts calling `received` for each signal. Needs a QCoreApplication.
    void watch(std::function<void()> received);

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmora
