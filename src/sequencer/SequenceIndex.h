#pragma once

#include "sequencer/Sequence.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// Finds notes by the steps at which they start and end, so that a tick does not visit all of them.
/// Identifies notes by their index in the list. Valid until notes change.
class SequenceIndex {
public:
    struct Moment {
        double step;
        std::uint32_t noteIndex;
    };

    explicit SequenceIndex(const std::vector<Note>& notes);

    /// The starts of the notes in order.
    const std::vector<Moment>& starts() const { return starts_; }

    /// Returns the notes that start in [from, to) or end in (from, to], in the order of the list.
    /// Valid until the next call.
    const std::vector<std::uint32_t>& startingOrEnding(double from, double to);

    /// The keys of the notes, each once, in order of their first note in the list.
    const std::vector<std::uint32_t>& keys() const { return keys_; }

private:
    std::vector<Moment> starts_, ends_;
    std::vector<std::uint32_t> keys_;
    std::vector<std::uint32_t> found_;
};

} // namespace velmora
