#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>

class QSocketNotifier;

namespace velmora {

/// An event that the MIDI receive threads pass to the main thread. The keys may have changed again
/// before it is handled: practice may miss a key that is pressed and released within one turn of
/// the event loop.
struct InputEvent {
    enum class Kind {
        MidiInput, ///< The held keys have changed.
        Volume     ///< A controller has moved a slider.
    };

    Kind kind = Kind::MidiInput;
    std::size_t slider = 0;
    float volume = 0.0F;
};

/// Carries events from any thread to the event loop of the thread that created it, in order.
/// Posting does not allocate. Events are dropped while the queue is full, which happens only if
/// that thread has stalled; sound does not depend on them.
class InputQueue {
public:
    /// `take` is called in the event loop once for every event.
    explicit InputQueue(std::function<void(const InputEvent&)> take);
    ~InputQueue();
    InputQueue(const InputQueue&) = delete;
    InputQueue& operator=(const InputQueue&) = delete;

    /// May be called on any thread.
    void post(const InputEvent& event);

private:
    static constexpr std::size_t kCapacity = 4096;

    bool pop(InputEvent& event);
    void drain();

    std::function<void(const InputEvent&)> take_;
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;

    std::mutex mutex_; ///< Guards the members below while one event is copied.
    std::array<InputEvent, kCapacity> events_{};
    std::size_t first_ = 0, count_ = 0;
};

} // namespace velmora
