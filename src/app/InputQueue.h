#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>

class QSocketNotifier;

namespace velmora {

/// Something that the receive threads leave to the main thread. By then the keys may have changed
/// again: practice may miss a short tap, pressed and released within one turn of the event loop.
struct InputEvent {
    enum class Kind {
        MidiInput, ///< The held keys have changed: for the display, and for practice to go on.
        Volume     ///< A controller has moved a slider.
    };

    Kind kind = Kind::MidiInput;
    std::size_t slider = 0;
    float volume = 0.0F;
};

/// Carries events from any thread to the event loop of the thread that made it, in the order in
/// which they came. Posting allocates nothing. What is posted while a great many events wait, as
/// they do only when that thread has stalled, is lost: what sounds does not come this way.
class InputQueue {
public:
    /// `take` is called in the event loop, once for each event.
    explicit InputQueue(std::function<void(const InputEvent&)> take);
    ~InputQueue();
    InputQueue(const InputQueue&) = delete;
    InputQueue& operator=(const InputQueue&) = delete;

    /// From any thread.
    void post(const InputEvent& event);

private:
    static constexpr std::size_t kCapacity = 4096;

    bool pop(InputEvent& event);
    void drain();

    std::function<void(const InputEvent&)> take_;
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;

    std::mutex mutex_; ///< Guards what follows, for the copy of one event at a time.
    std::array<InputEvent, kCapacity> events_{};
    std::size_t first_ = 0, count_ = 0;
};

} // namespace velmora
