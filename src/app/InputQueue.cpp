#include "app/InputQueue.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <system_error>

namespace velmora {

InputQueue::InputQueue(std::function<void(const InputEvent&)> take)
    : take_(std::move(take)), descriptor_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (descriptor_ < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { drain(); });
}

InputQueue::~InputQueue()
{
    notifier_.reset();
    close(descriptor_);
}

void InputQueue::post(const InputEvent& event)
{
    const bool isInput = event.kind == InputEvent::Kind::MidiInput;
    if (isInput && isInputPending_.exchange(true))
        return;
    if (!events_.push(event)) {
        if (isInput)
            isInputPending_ = false;
        return;
    }
    if (isFilled_.exchange(true))
        return;
    const std::uint64_t one = 1;
    // This fails only if the counter is full; then the event loop is awake already.
    [[maybe_unused]] const ssize_t written = write(descriptor_, &one, sizeof one);
}

// See docs/decisions.md, 95.
void InputQueue::drain()
{
    std::uint64_t wakeUps = 0;
    [[maybe_unused]] const ssize_t length = read(descriptor_, &wakeUps, sizeof wakeUps);
    isFilled_ = false; // before the queue is read, so that no later event is overlooked
    while (const InputEvent* first = events_.front()) {
        const InputEvent event = *first;
        events_.pop();
        if (event.kind == InputEvent::Kind::MidiInput)
            isInputPending_ = false;
        take_(event);
    }
}

} // namespace velmora
