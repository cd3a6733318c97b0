#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace velmora {

/// The notes of a track that have started but not ended, in order of start for each channel and
/// key. It can hold fewer than 2³² notes.
template <class Note> class OpenNotes {
public:
    void start(std::size_t channel, std::size_t key, Note note)
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

    /// The greatest number of notes that `end` skips.
    static constexpr std::size_t kMaximumSkipped = 255;

    /// Removes and returns the first note of a channel and key for which `matches` is true, or the
    /// first of all if there is none. Returns nothing if no note is open.
    template <class Predicate>
    std::optional<Note> end(std::size_t channel, std::size_t key, Predicate matches)
    {
        Queue& queue = queues_[channel * kKeysPerChannel + key];
        std::uint32_t before = kNone, link = queue.first;
        for (std::size_t i = 0; link != kNone && !matches(links_[link].note); ++i)
            before = std::exchange(link, i < kMaximumSkipped ? links_[link].next : kNone);
        return link == kNone ? remove(queue, kNone) : remove(queue, before);
    }

    /// Removes all notes and calls `visit` for each.
    template <class Visit> void endAll(Visit visit)
    {
        for (std::size_t i = 0; count_ > 0; ++i)
            while (const auto note = remove(queues_[i], kNone))
                visit(*note);
    }

private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;
    static constexpr std::size_t kKeysPerChannel = 128;

    struct Link {
        Note note;
        std::uint32_t next;
    };
    struct Queue {
        std::uint32_t first = kNone;
        std::uint32_t last = kNone;
    };

    /// Removes the note after `before`, or the first of the queue if `before` is kNone.
    std::optional<Note> remove(Queue& queue, std::uint32_t before)
    {
        std::uint32_t& next = before == kNone ? queue.first : links_[before].next;
        const std::uint32_t link = next;
        if (link == kNone)
            return std::nullopt;
        next = std::exchange(links_[link].next, free_);
        if (queue.last == link)
            queue.last = before;
        free_ = link;
        --count_;
        return links_[link].note;
    }

    std::vector<Link> links_;
    std::uint32_t free_ = kNone; ///< First of a list of unused links.
    std::size_t count_ = 0;
    std::array<Queue, 16 * kKeysPerChannel> queues_;
};

} // namespace velmora
