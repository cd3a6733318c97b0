#pragma once

#include "midi/messages.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>

namespace velmora {

/// A key or a controller of the MIDI devices. Devices are not told apart.
struct MidiControl {
    enum class Kind : std::uint8_t { Key, Controller };

    Kind kind = Kind::Controller;
    std::uint8_t channel = 0; ///< 0…15
    std::uint8_t number = 0;  ///< The key, 0…127, or the controller, 0…119.

    bool operator==(const MidiControl&) const = default;
};

/// What a control can be taught to do. See docs/decisions.md, 139. Its size and alignment let the
/// processor exchange it whole.
struct alignas(4) LearnedAction {
    enum class Kind : std::uint16_t {
        None,
        Volume, ///< A controller moves a volume slider; a key switches it between 0 and 1.
        Play,
        Record,
        Stop,
        Silence,      ///< Ends every sound.
        MasterVolume, ///< As `Volume`, for everything that sounds.
    };

    Kind kind = Kind::None;
    std::uint16_t slider = 0; ///< The number of the slider, from 0, of `Volume`.

    bool operator==(const LearnedAction&) const = default;
};

/// Which control does what. One thread teaches; the MIDI receive threads look up, and bind the
/// control that is used while an action waits for one. Nothing waits for a lock.
class LearnedControls {
public:
    /// Returns the action of a control; its kind is `None` if the control has learned nothing.
    LearnedAction get(MidiControl control) const { return actions_[index(control)]; }

    void set(MidiControl control, LearnedAction action) { actions_[index(control)] = action; }

    /// Lets the next control that is used learn an action. `None` ends the waiting.
    void listen(LearnedAction action) { awaited_ = action; }

    /// Binds a control if an action waits for one, and ends the waiting. Returns whether it did.
    bool bind(MidiControl control)
    {
        if (awaited_.load().kind == LearnedAction::Kind::None)
            return false;
        const LearnedAction action = awaited_.exchange({});
        if (action.kind == LearnedAction::Kind::None)
            return false; // another device was faster
        set(control, action);
        return true;
    }

private:
    static constexpr std::size_t kNumbers = 128;

    static std::size_t index(MidiControl control)
    {
        const std::size_t kind = control.kind == MidiControl::Kind::Key ? 0 : 1;
        return (kind * midi::kChannels + control.channel) * kNumbers + control.number;
    }

    std::array<std::atomic<LearnedAction>, kNumbers * midi::kChannels * 2> actions_{};
    std::atomic<LearnedAction> awaited_{};
    static_assert(std::atomic<LearnedAction>::is_always_lock_free);
};

} // namespace velmora
