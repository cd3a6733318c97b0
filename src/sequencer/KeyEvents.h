#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
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

/// A pedal or another controller of live input that was moved.
struct ControlEvent {
    std::uint16_t number; ///< As in `ControllerEvent`.
    std::uint16_t value;
    double time; ///< In the seconds of `getTime`.
};

/// The latest events of live input in the order of their arrival. Any thread may add events and
/// read them, without waiting; every reader has its own place. A reader that falls behind by more
/// than `kCapacity` events loses the oldest ones.
template <class Event> class LiveEvents {
public:
    /// Far more than a player causes while the main thread hangs.
    static constexpr std::size_t kCapacity = 8192;

    void add(const Event& event)
    {
        const std::uint64_t place = end_++;
        Slot& slot = slots_[place % kCapacity];
        slot.number = 0; // whoever reads the slot now starts over
        const auto words = std::bit_cast<Words>(event);
        for (std::size_t i = 0; i < words.size(); ++i)
            slot.words[i] = words[i];
        slot.number = place + 1;
    }

    /// The place of the next event that will be added.
    std::uint64_t end() const { return end_; }

    /// Returns the event at a place and moves the place on; nothing if there is none yet.
    std::optional<Event> read(std::uint64_t& place) const
    {
        if (const std::uint64_t end = end_; end > place + kCapacity)
            place = end - kCapacity;
        const Slot& slot = slots_[place % kCapacity];
        if (slot.number != place + 1)
            return std::nullopt;
        Words words{};
        for (std::size_t i = 0; i < words.size(); ++i)
            words[i] = slot.words[i];
        if (slot.number != place + 1) // replaced in the meantime
            return read(place);
        ++place;
        return std::bit_cast<Event>(words);
    }

private:
    using Words = std::array<std::uint64_t, sizeof(Event) / sizeof(std::uint64_t)>;

    struct Slot {
        std::atomic<std::uint64_t> number; ///< The event's place and 1; 0 while it is written.
        std::array<std::atomic<std::uint64_t>, std::tuple_size_v<Words>> words;
    };

    std::vector<Slot> slots_ = std::vector<Slot>(kCapacity);
    std::atomic<std::uint64_t> end_ = 0;
};

/// Adds the events from `place` on to those that are still to be taken, in order of time.
template <class Event>
void collect(const LiveEvents<Event>& from, std::uint64_t& place, std::vector<Event>& events)
{
    while (const auto event = from.read(place))
        events.push_back(*event);
    // Each device has a thread of its own, and those of JACK announce what is about to happen.
    std::ranges::stable_sort(events, {}, &Event::time);
}

using KeyEvents = LiveEvents<KeyEvent>;
using ControlEvents = LiveEvents<ControlEvent>;

} // namespace velmora
