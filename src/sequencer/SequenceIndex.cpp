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
    found_.reserve(kKeys); // room for a chord, so that playing does not allocate
    std::bitset<kKeys> used;
    for (const Note& note : notes) {
        const auto noteIndex = static_cast<std::uint32_t>(starts_.size());
        starts_.push_back({note.start, noteIndex});
        ends_.push_back({note.start + note.length, noteIndex});
        if (!used[note.key])
            keys_.push_back(note.key);
        used.set(note.key);
    }
    sortByStep(starts_);
    sortByStep(ends_);
}

const std::vector<std::uint32_t>& SequenceIndex::startingOrEnding(double from, double to)
{
    found_.clear();
    if (!(from < to))
        return found_;
    for (auto start = notBefore(starts_, from); start != starts_.end() && start->step < to; ++start)
        found_.push_back(start->noteIndex);
    for (auto end = after(ends_, from); end != ends_.end() && end->step <= to; ++end)
        found_.push_back(end->noteIndex);
    std::sort(found_.begin(), found_.end());
    found_.erase(std::unique(found_.begin(), found_.end()), found_.end());
    return found_;
}

} // namespace velmora
