#include "sequencer/NotePreview.h"

#include "sequencer/SequenceDocument.h"

#include <utility>

namespace velmora {

void NotePreview::show(std::vector<NoteState> changes)
{
    const auto edit = document_.edit(); // announces the change once
    takeBack();
    states_ = std::move(changes);
    swap();
}

void NotePreview::takeBack()
{
    swap();
    states_.clear();
}

void NotePreview::swap()
{
    if (states_.empty())
        return;
    std::vector<std::uint64_t> ids;
    ids.reserve(states_.size());
    for (const NoteState& state : states_)
        ids.push_back(state.id);
    document_.edit(ids)->swap(states_);
    document_.updateExtent();
}

} // namespace velmora
