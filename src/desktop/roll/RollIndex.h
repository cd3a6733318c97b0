#pragma once

#include "sequencer/Sequence.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace velmora {

/// Finds the notes in a range of time without looking at every note: it knows the time span of each
/// block of consecutive notes. The notes may be in any order; the index is fastest if they are
/// sorted, or nearly so.
class RollIndex {
public:
    /// Indexes the notes. Must be called again after notes are added, removed, moved or resized.
    void rebuild(const std::vector<Note>& notes);

    /// Calls `use` for each note that touches the time between the steps `from` and `to`, in list
    /// order. `notes` must be the notes that were last indexed.
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
