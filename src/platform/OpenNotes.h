#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

/// The notes of a track that have begun and not ended, in the order of their beginning per channel
/// and key. A track has below 2³² of them.
template <class Begun> class OpenNotes {
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

    /// So far `end` looks for one that is wanted.
    static constexpr std::size_t kMostPassedOver = 255;

    /// Takes out the first one of a channel and key that is `wanted`, or none.
    template <class Wanted>
    std::optional<Begun> end(std::size_t channel, std::size_t key, Wanted wanted)
    {
        return end(queues_[channel * kKeysPerChannel + key], wanted);
    }

    std::optional<Begun> end(std::size_t channel, std::size_t key)
    {
        return end(channel, key, any);
    }

    template <class Visit> void endAll(Visit visit)
    {
        for (std::size_t i = 0; count_ > 0; ++i)
            while (const auto note = end(queues_[i], any))
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

    static bool any(const Begun& /*note*/) { return true; }

    template <class Wanted> std::optional<Begun> end(Queue& queue, Wanted wanted)
    {
        std::uint32_t before = kNone, link = queue.first;
        for (std::size_t i = 0; link != kNone && !wanted(links_[link].note); ++i)
            before = std::exchange(link, i < kMostPassedOver ? links_[link].next : kNone);
        if (link == kNone)
            return std::nullopt;
        const std::uint32_t next = std::exchange(links_[link].next, free_);
        (before == kNone ? queue.first : links_[before].next) = next;
        if (queue.last == link)
            queue.last = before;
        free_ = link;
        --count_;
        return links_[link].note;
    }

    std::vector<Link> links_;
    std::uint32_t free_ = kNone;
    std::size_t count_ = 0;
    std::array<Queue, 16 * kKeysPerChannel> queues_;
};
