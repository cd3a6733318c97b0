#pragma once

#include "sequencer/Sequence.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace velmora {

/// Finds the notes of a stretch of time without looking at each: for every few notes on end it
/// knows the time that they span. The order of the notes does not matter; where they are sorted, or
/// nearly so, it saves the most.
class RollIndex {
public:
    /// Forgets what it knew; for when notes have come, gone, moved or changed their length.
    void rebuild(const std::vector<Note>& notes);

    /// Calls `use` for the notes, in their order, that touch the steps from `from` to `to`. `notes`
    /// are those of the last `rebuild`.
    template <class Use>
    void visit(const std::vector<Note>& notes, double from, double to, Use use) const
    {
        for (std::size_t block = 0; block < spans_.size(); ++block) {
            if (spans_[block].start > to || spans_[block].end < from)
                continue;
            const std::size_t end = std::min(notes.size(), (block + 1) * kBlock);
            for (std::size_t i = block * kBlock; i < end; ++i)
                if (notes[i].start <= to && notes[i].start + notes[i].length >= from)
                    use(notes[i]);
        }
    }

private:
    static constexpr std::size_t kBlock = 64;

    struct Span {
        double start;
        double end;
    };
    std::vector<Span> spans_;
};

} // namespace velmora
