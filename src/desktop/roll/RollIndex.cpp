#include "desktop/roll/RollIndex.h"

namespace velmora {

void RollIndex::rebuild(const std::vector<Note>& notes)
{
    spans_.clear();
    for (std::size_t i = 0; i < notes.size(); ++i) {
        const Note& note = notes[i];
        const double end = note.start + note.length;
        if (i % kBlock == 0)
            spans_.push_back({note.start, end});
        spans_.back().start = std::min(spans_.back().start, note.start);
        spans_.back().end = std::max(spans_.back().end, end);
    }
}

} // namespace velmora
