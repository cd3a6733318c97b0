#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

/// A note that has begun: where it stands among the events of its track, and its tick.
struct Begun {
    std::uint64_t tick;
    std::uint32_t event; ///< A track has below 2³² bytes, hence below 2³² events.
};

/// The notes of a track that have begun and not ended, first in, first out per channel and key.
class OpenNotes {
public:
    void begin(std::size_t channel, std::size_t key, Begun note)
    {
        std::uint32_t link = free_;
        if (link != kNone) {
            free_ = links_[link].next;
            links_[link] = {note, kNone};
        } else {
            link = static_cast<std::uint32_t>(links_.size());
            links_.push_back({note, kNone});
        }
        Queue& queue = queues_[channel * kKeysPerChannel + key];
        (queue.first == kNone ? queue.first : links_[queue.last].next) = link;
        queue.last = link;
        ++count_;
    }

    std::optional<Begun> end(std::size_t channel, std::size_t key)
    {
        return end(queues_[channel * kKeysPerChannel + key]);
    }

    template <class Visit> void endAll(Visit visit)
    {
        for (std::size_t i = 0; count_ > 0; ++i)
            while (const auto note = end(queues_[i]))
                visit(*note);
    }

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    static constexpr std::size_t kKeysPerChannel = 128;

    struct Link {
        Begun note;
        std::uint32_t next;
    };
    struct Queue {
        std::uint32_t first = kNone;
        std::uint32_t last = kNone;
    };

    std::optional<Begun> end(Queue& queue)
    {
        if (queue.first == kNone)
            return std::nullopt;
        const std::uint32_t link = queue.first;
        queue.first = std::exchange(links_[link].next, free_);
        free_ = link;
        --count_;
        return links_[link].note;
    }

    std::vector<Link> links_;
    std::uint32_t free_ = kNone;
    std::size_t count_ = 0;
    std::array<Queue, 16 * kKeysPerChannel> queues_;
};
