#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

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

    /// Takes out the first one of a channel and key that is `wanted`, or else the first one; none
    /// where none is open.
    template <class Wanted>
    std::optional<Begun> end(std::size_t channel, std::size_t key, Wanted wanted)
    {
        Queue& queue = queues_[channel * kKeysPerChannel + key];
        std::uint32_t before = kNone, link = queue.first;
        for (std::size_t i = 0; link != kNone && !wanted(links_[link].note); ++i)
            before = std::exchange(link, i < kMostPassedOver ? links_[link].next : kNone);
        return link == kNone ? takeOut(queue, kNone) : takeOut(queue, before);
    }

    template <class Visit> void endAll(Visit visit)
    {
        for (std::size_t i = 0; count_ > 0; ++i)
            while (const auto note = takeOut(queues_[i], kNone))
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

    /// The one behind `before`, a link of the queue, or its first.
    std::optional<Begun> takeOut(Queue& queue, std::uint32_t before)
    {
        std::uint32_t& behind = before == kNone ? queue.first : links_[before].next;
        const std::uint32_t link = behind;
        if (link == kNone)
            return std::nullopt;
        behind = std::exchange(links_[link].next, free_);
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

} // namespace velmora
