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
    {
        const std::lock_guard lock(mutex_);
        if (count_ == kCapacity)
            return;
        events_[(first_ + count_) % kCapacity] = event;
        ++count_;
    }
    const std::uint64_t one = 1;
    // This fails only if the counter is full; then the event loop is awake already.
    [[maybe_unused]] const ssize_t written = write(descriptor_, &one, sizeof one);
}

bool InputQueue::pop(InputEvent& event)
{
    const std::lock_guard lock(mutex_);
    if (count_ == 0)
        return false;
    event = events_[first_];
    first_ = (first_ + 1) % kCapacity;
    --count_;
    return true;
}

// See docs/decisions.md, 95.
void InputQueue::drain()
{
    std::uint64_t wakeUps = 0;
    [[maybe_unused]] const ssize_t length = read(descriptor_, &wakeUps, sizeof wakeUps);
    InputEvent event;
    while (pop(event))
        take_(event);
}

} // namespace velmora
