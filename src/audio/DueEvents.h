#pragma once

#include "audio/AudioSource.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

namespace velmora {

/// Events on the audio thread that wait until they are due, in that order. An `Event` has the
/// members `due`, in the seconds of `getTime`, and `frame`, its place in a block. Nothing allocates
/// after construction.
template <class Event> class DueEvents {
public:
    explicit DueEvents(std::size_t capacity) : capacity_(capacity) { events_.reserve(capacity); }

    bool isFull() const { return events_.size() >= capacity_; }

    /// Adds an event behind those that are due at the same time. There must be room for it.
    void add(const Event& event)
    {
        events_.insert(std::ranges::upper_bound(events_, event.due, {}, &Event::due), event);
    }

    /// Returns the events that are due before the end of the next `frames` frames, whose first is
    /// at the moment `start`, and sets their frames to multiples of `grid`. Offline, all are due.
    std::span<const Event> find(std::size_t frames, double start, double rate, std::size_t grid = 1)
    {
        std::size_t count = 0;
        for (; count < events_.size(); ++count) {
            Event& event = events_[count];
            const double ahead =
                start == AudioSource::kOffline ? 0.0 : std::round((event.due - start) * rate);
            if (ahead >= static_cast<double>(frames))
                break;
            event.frame = static_cast<std::size_t>(std::max(ahead, 0.0)) / grid * grid;
        }
        return std::span(events_).first(count);
    }

    /// All events, in the order in which they are due.
    const std::vector<Event>& all() const { return events_; }

    void clear() { events_.clear(); }

    /// Removes the first events.
    void removeFirst(std::size_t count)
    {
        events_.erase(events_.begin(), events_.begin() + static_cast<std::ptrdiff_t>(count));
    }

    /// Removes the events for which `condition` is true.
    template <class Condition> void removeIf(const Condition& condition)
    {
        std::erase_if(events_, condition);
    }

private:
    std::size_t capacity_;
    std::vector<Event> events_;
};

} // namespace velmora
