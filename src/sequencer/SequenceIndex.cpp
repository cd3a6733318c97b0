#include "sequencer/SequenceIndex.h"

#include "sound/keys.h"

#include <algorithm>
#include <bitset>

namespace velmora {

namespace {

using Moments = std::vector<SequenceIndex::Moment>;

void sortByStep(Moments& moments)
{
    const auto before = [](const auto& a, const auto& b) { return a.step < b.step; };
    if (!std::is_sorted(moments.begin(), moments.end(), before))
        std::sort(moments.begin(), moments.end(), before);
}

/// Returns the first moment that is not before a step.
Moments::const_iterator notBefore(const Moments& moments, double step)
{
    return std::partition_point(moments.begin(), moments.end(),
                                [=](const auto& moment) { return moment.step < step; });
}

/// Returns the first moment after a step.
Moments::const_iterator after(const Moments& moments, double step)
{
    return std::partition_point(moments.begin(), moments.end(),
                                [=](const auto& moment) { return moment.step <= step; });
}

} // namespace

SequenceIndex::SequenceIndex(const std::vector<Note>& notes)
{
    starts_.reserve(notes.size());
    ends_.reserve(notes.size());
    concerned_.reserve(kKeys); // room for a chord, so that playing does not allocate
    std::bitset<kKeys> used;
    for (const Note& note : notes) {
        const auto position = static_cast<std::uint32_t>(starts_.size());
        starts_.push_back({note.start, position});
        ends_.push_back({note.start + note.length, position});
        if (!used[note.key])
            keys_.push_back(note.key);
        used.set(note.key);
    }
    sortByStep(starts_);
    sortByStep(ends_);
}

const std::vector<std::uint32_t>& SequenceIndex::concernedBy(double from, double to)
{
    concerned_.clear();
    if (!(from < to))
        return concerned_;
    for (auto start = notBefore(starts_, from); start != starts_.end() && start->step < to; ++start)
        concerned_.push_back(start->position);
    for (auto end = after(ends_, from); end != ends_.end() && end->step <= to; ++end)
        concerned_.push_back(end->position);
    std::sort(concerned_.begin(), concerned_.end());
    concerned_.erase(std::unique(concerned_.begin(), concerned_.end()), concerned_.end());
    return concerned_;
}

} // namespace velmora
