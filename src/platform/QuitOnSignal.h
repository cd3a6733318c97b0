#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// Calls back in the event loop when the program receives SIGINT or SIGTERM. Must be created before
/// any other thread, because the signals have to be blocked in every thread to be read here.
class QuitOnSignal {
public:
    QuitOnSignal();
    ~QuitOnSignal();
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;

    /// Starts calling `quit` on each signal. Needs a QCoreApplication.
    void watch(std::function<void()> quit);

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmora
