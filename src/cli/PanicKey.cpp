#include "cli/PanicKey.h"

#include "base/Text.h"

#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <span>
#include <utility>

namespace velmora {

PanicKey::PanicKey(std::function<void()> pressed)
    : pressed_(std::move(pressed)),
      notifier_(std::make_unique<QSocketNotifier>(STDIN_FILENO, QSocketNotifier::Read))
{
    // Otherwise reading would stop a program that runs in the background of a terminal.
    std::signal(SIGTTIN, SIG_IGN);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { readInput(); });
}

PanicKey::~PanicKey() = default;

void PanicKey::readInput()
{
    constexpr int kPause = 1000;             ///< In milliseconds.
    constexpr std::size_t kLongestLine = 16; ///< What follows is dropped: input may have no lines.
    std::array<char, 256> buffer{};
    const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0) {
        notifier_->setEnabled(false);
        if (count < 0 && errno == EIO) // in the background; perhaps not for ever
            QTimer::singleShot(kPause, notifier_.get(), [this] { notifier_->setEnabled(true); });
        return;
    }
    for (const char c : std::span(buffer).first(static_cast<std::size_t>(count))) {
        if (c != '\n') {
            if (line_.size() < kLongestLine)
                line_ += c;
            continue;
        }
        if (lowerCase(line_) == "p")
            pressed_();
        line_.clear();
    }
}

} // namespace velmora
