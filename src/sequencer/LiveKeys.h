#pragma once

#include "sequencer/KeyEvents.h"
#include "sound/keys.h"

#include <array>
#include <atomic>
#include <cstddef>

namespace velmora {

/// Bit flags for a key's state; 0 is released.
constexpr int kPressed = 1; ///< Pressed since the sequencer last looked.
constexpr int kWanted = 2;  ///< A sequence plays the key or waits for it.
constexpr int kHeld = 4;    ///< Held, and already taken into account by the sequencer.

/// The state of each key of live input, and what has happened to it. Any thread may read or write
/// it: every entry is atomic.
class LiveKeys {
public:
    /// Marks a key as pressed, with a velocity from 0 to 1, at `time` in the seconds of `getTime`.
    void press(std::size_t key, float velocity, double time)
    {
        noteVelocities_[key] = velocity;
        noteStates_[key] = kPressed;
        events_.add({static_cast<std::uint8_t>(key), true, velocity, time});
    }

    /// Marks a key as released. Its velocity stays.
    /// See docs/decisions.md, 52.
    void release(std::size_t key, double time)
    {
        noteStates_[key] = 0;
        events_.add({static_cast<std::uint8_t>(key), false, 0.0F, time});
    }

    /// Marks every key as released.
    void clear()
    {
        for (auto& state : noteStates_)
            state = 0;
    }

    /// Turns `kPressed` into `kHeld`. Returns the previous state: 0, `kPressed` or `kHeld`.
    int take(std::size_t key)
    {
        int state = kPressed;
        noteStates_[key].compare_exchange_strong(state, kHeld);
        return state;
    }

    /// The state of a key: 0, `kPressed` or `kHeld`.
    int state(std::size_t key) const { return noteStates_[key]; }

    /// The velocity, 0 to 1, of the key's last press.
    float velocity(std::size_t key) const { return noteVelocities_[key]; }

    /// Every press and release, even if a key changed several times since the last look.
    const KeyEvents& events() const { return events_; }

    /// Notes that a controller was moved at `time`, in the seconds of `getTime`.
    void control(int number, int value, double time)
    {
        controls_.add(
            {static_cast<std::uint16_t>(number), static_cast<std::uint16_t>(value), time});
    }

    /// Every move of a controller.
    const ControlEvents& controls() const { return controls_; }

private:
    std::array<std::atomic<int>, kKeys> noteStates_{};
    std::array<std::atomic<float>, kKeys> noteVelocities_{};
    KeyEvents events_;
    ControlEvents controls_;
};

} // namespace velmora
