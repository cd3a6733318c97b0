#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

/// A press or a release of a live key.
struct KeyEvent {
    std::uint8_t key; ///< MIDI key, 0 to 127.
    bool isPress;
    float velocity; ///< 0 to 1; of a press.
    double time;    ///< In the seconds of `getTime`.
};

/// The latest events of the live keys in the order of their arrival. Any thread may add events and
/// read them, without waiting; every reader has its own place. A reader that falls behind by more
/// than `kCapacity` events loses the oldest ones.
class KeyEvents {
public:
    /// Far more than a player strikes while the main thread hangs.
    static constexpr std::size_t kCapacity = 8192;

    void add(const KeyEvent& event)
    {
        const std::uint64_t place = end_++;
        Slot& slot = slots_[place % kCapacity];
        slot.number = 0; // whoever reads the slot now starts over
        slot.key = event.key;
        slot.isPress = event.isPress;
        slot.velocity = event.velocity;
        slot.time = event.time;
        slot.number = place + 1;
    }

    /// The place of the next event that will be added.
    std::uint64_t end() const { return end_; }

    /// Returns the event at a place and moves the place on; nothing if there is none yet.
    std::optional<KeyEvent> read(std::uint64_t& place) const
    {
        if (const std::uint64_t end = end_; end > place + kCapacity)
            place = end - kCapacity;
        const Slot& slot = slots_[place % kCapacity];
        if (slot.number != place + 1)
            return std::nullopt;
        const KeyEvent event{slot.key, slot.isPress, slot.velocity, slot.time};
        if (slot.number != place + 1) // replaced in the meantime
            return read(place);
        ++place;
        return event;
    }

private:
    struct Slot {
        std::atomic<std::uint64_t> number; ///< The event's place and 1; 0 while it is written.
        std::atomic<std::uint8_t> key;
        std::atomic<bool> isPress;
        std::atomic<float> velocity;
        std::atomic<double> time;
    };

    std::vector<Slot> slots_ = std::vector<Slot>(kCapacity);
    std::atomic<std::uint64_t> end_ = 0;
};

} // namespace velmora
