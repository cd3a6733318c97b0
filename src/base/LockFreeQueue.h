#pragma once

#include <atomic>
#include <bit>
#include <cstddef>
#include <memory>

namespace velmora {

/// A bounded queue from any number of threads to one. No operation waits, and none allocates after
/// construction.
///
/// Each slot carries the number of the turn that may use it next (Dmitry Vyukov, "Bounded MPMC
/// queue", 2010).
template <class T> class LockFreeQueue {
public:
    /// Holds at least `capacity` values.
    explicit LockFreeQueue(std::size_t capacity)
        : mask_(std::bit_ceil(capacity) - 1), slots_(std::make_unique<Slot[]>(mask_ + 1))
    {
        for (std::size_t i = 0; i <= mask_; ++i)
            slots_[i].turn.store(i, std::memory_order_relaxed);
    }

    /// Appends a value. Returns false, and does nothing, if the queue is full.
    bool push(const T& value)
    {
        std::size_t turn = last_.load(std::memory_order_relaxed);
        for (;;) {
            Slot& slot = slots_[turn & mask_];
            const std::size_t next = slot.turn.load(std::memory_order_acquire);
            if (next == turn) {
                if (last_.compare_exchange_weak(turn, turn + 1, std::memory_order_relaxed)) {
                    slot.value = value;
                    slot.turn.store(turn + 1, std::memory_order_release);
                    return true;
                }
            } else if (next < turn) {
                return false;
            } else {
                turn = last_.load(std::memory_order_relaxed);
            }
        }
    }

    /// The first value, for the reading thread; null if there is none. It is valid until `pop`.
    const T* front() const
    {
        const Slot& slot = slots_[first_ & mask_];
        return slot.turn.load(std::memory_order_acquire) == first_ + 1 ? &slot.value : nullptr;
    }

    /// Removes the first value, which must exist. For the reading thread.
    void pop()
    {
        slots_[first_ & mask_].turn.store(first_ + mask_ + 1, std::memory_order_release);
        ++first_;
    }

private:
    struct Slot {
        std::atomic<std::size_t> turn;
        T value;
    };

    std::size_t mask_;
    std::unique_ptr<Slot[]> slots_;
    std::atomic<std::size_t> last_{0}; ///< The turn of the next value.
    std::size_t first_ = 0;            ///< The turn of the first value.
};

} // namespace velmora
