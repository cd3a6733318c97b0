#pragma once

#include "sequencer/Sequence.h"

#include <cstdint>
#include <vector>

namespace velmora {

/// The notes of a sequence by the moments at which they start and end, so that a tick need not walk
/// through all of them. Names notes by their position in the list, and holds until notes change.
class SequenceIndex {
public:
    struct Moment {
        double step;
        std::uint32_t position;
    };

    explicit SequenceIndex(const std::vector<Note>& notes);

    /// In order of the step.
    const std::vector<Moment>& starts() const { return starts_; }

    /// The notes that start at `from` or between the two, or end between the two or at `to`, in
    /// the order of the list. Holds until the next call.
    const std::vector<std::uint32_t>& concernedBy(double from, double to);

    /// The keys of the notes, each once, in the order of the list.
    const std::vector<std::uint32_t>& keys() const { return keys_; }

private:
    std::vector<Moment> starts_, ends_;
    std::vector<std::uint32_t> keys_;
    std::vector<std::uint32_t> concerned_;
};

} // namespace velmora
