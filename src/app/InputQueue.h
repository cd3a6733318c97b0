#pragma once

#include "base/LockFreeQueue.h"
#include "midi/LearnedControls.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace velmora {

/// An event that the MIDI receive threads pass to the main thread. The keys may have changed again
/// before it is handled: practice may miss a key that is pressed and released within one turn of
/// the event loop.
struct InputEvent {
    enum class Kind {
        MidiInput,    ///< The held keys have changed.
        Volume,       ///< A controller has moved a slider.
        MasterVolume, ///< A learned control has moved it.
        Program,      ///< A General MIDI program was selected.
        Console,      ///< A stop or a swell of an organ was moved.
        Action,       ///< A learned control was used.
        Learned,      ///< A control has learned an action.
        Tuning        ///< A device has sent a tuning.
    };

    Kind kind = Kind::MidiInput;
    std::size_t slider = 0;
    float volume = 0.0F;
    std::uint8_t program = 0;
    LearnedAction::Kind action = LearnedAction::Kind::None;
    MidiControl control = {};
};

/// Carries events from any thread to the event loop of the thread that created it, in order.
/// Posting neither waits nor allocates. Events are dropped while the queue is full, which happens
/// only if that thread has stalled; sound does not depend on them.
class InputQueue {
public:
    /// `take` is called in the event loop once for every event.
    explicit InputQueue(std::function<void(const InputEvent&)> take);
    ~InputQueue();
    InputQueue(const InputQueue&) = delete;
    InputQueue& operator=(const InputQueue&) = delete;

    /// May be called on any thread. A `MidiInput` that waits to be handled stands for those that
    /// follow.
    void post(const InputEvent& event);

private:
    static constexpr std::size_t kCapacity = 4096;

    void drain();

    std::function<void(const InputEvent&)> take_;
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;

    LockFreeQueue<InputEvent> events_{kCapacity};
    std::atomic<bool> isFilled_{false};       ///< The event loop has been woken.
    std::atomic<bool> isInputPending_{false}; ///< A `MidiInput` is in the queue.
};

} // namespace velmora
