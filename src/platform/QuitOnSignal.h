#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// Calls back in the event loop, once the program is asked by SIGINT or SIGTERM to end. To be made
/// before any other thread is: threads inherit that these signals wait to be read here.
class QuitOnSignal {
public:
    QuitOnSignal();
    ~QuitOnSignal();
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;

    /// Calls `quit` from now on. Needs a QCoreApplication.
    void watch(std::function<void()> quit);

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmora
