// How a document registers what was recorded, and chooses between the takes of a loop.

#include "sequencer/SequenceDocument.h"

#include <algorithm>
#include <utility>

namespace velmora {

void SequenceDocument::registerTake()
{
    std::vector<NoteState> before = recorder_.endTake();
    const Controllers moved = recorder_.endControllers();
    if (!moved.empty())
        undoStack_.beginMacro(tr("Record"));
    if (!before.empty())
        registerNotes(std::move(before));
    if (moved.empty())
        return;
    pushControllers(withRecorded(controllersWithoutTakes(), moved), tr("Record Controllers"));
    undoStack_.endMacro();
}

void SequenceDocument::registerNotes(std::vector<NoteState> before)
{
    const auto added = std::count_if(before.begin(), before.end(),
                                     [](const NoteState& state) { return !state.note; });
    registerDone(std::move(before),
                 editText(QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Record %n Note(s)"),
                          static_cast<std::size_t>(added)));
}

Controllers SequenceDocument::controllersWithoutTakes() const
{
    Controllers rest = controllers_;
    for (const Take& take : recorder_.takes()) {
        if (take.controllers.empty() || !holds(controllers_, take.controllers.front()))
            continue;
        std::erase_if(rest,
                      [&](const ControllerEvent& event) { return holds(take.controllers, event); });
        const Controllers replaced = replacedBy(take.controllers, controllersBeforeTakes_);
        rest.insert(rest.end(), replaced.begin(), replaced.end());
        std::ranges::stable_sort(rest, {}, &ControllerEvent::step);
    }
    return rest;
}

// See docs/decisions.md, 191.
void SequenceDocument::chooseTake(std::size_t chosen)
{
    const auto& takes = recorder_.takes();
    std::vector<NoteState> states;
    Controllers controllers = controllersWithoutTakes();
    for (std::size_t i = 0; i < takes.size(); ++i)
        for (const Note& note : takes[i].notes)
            if (const bool exists = sequence_.find(note.id) != nullptr; exists != (i == chosen))
                states.push_back({note.id, exists ? std::nullopt : std::optional(note)});
    if (chosen < takes.size())
        controllers = withRecorded(controllers, takes[chosen].controllers);
    if (states.empty() && controllers == controllers_)
        return;
    const QString text = tr("Choose Take %1").arg(chosen + 1);
    registerTake();
    undoStack_.beginMacro(text);
    perform(std::move(states), text);
    setControllers(std::move(controllers), text);
    undoStack_.endMacro();
}

std::optional<std::size_t> SequenceDocument::chosenTake() const
{
    const auto& takes = recorder_.takes();
    for (std::size_t i = 0; i < takes.size(); ++i) {
        const auto& [notes, controllers] = takes[i];
        const bool exists = notes.empty()
                                ? holds(controllers_, controllers.front())
                                : std::ranges::any_of(notes, [this](const Note& note) {
                                      return std::as_const(sequence_).find(note.id) != nullptr;
                                  });
        if (exists)
            return i;
    }
    return std::nullopt;
}

} // namespace velmora
