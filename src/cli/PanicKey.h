#pragma once

#include <functional>
#include <memory>
#include <string>

class QSocketNotifier;

namespace velmora {

/// Calls back in the event loop when a line with the letter P is read from standard input. The end
/// of the input changes nothing. Needs a QCoreApplication.
class PanicKey {
public:
    explicit PanicKey(std::function<void()> pressed);
    ~PanicKey();
    PanicKey(const PanicKey&) = delete;
    PanicKey& operator=(const PanicKey&) = delete;

private:
    void readInput();

    std::function<void()> pressed_;
    std::string line_; ///< What has been read since the last line end.
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmora
