// The editor's commands that choose notes without the mouse and change the chosen ones.

#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sound/keys.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace velmora {

namespace {

/// The order in which the keyboard visits notes: by time, and upwards through a chord.
auto placeOf(const Note& note)
{
    return std::tuple(note.start, note.key, note.id);
}

bool isPlacedBefore(const Note& a, const Note& b)
{
    return placeOf(a) < placeOf(b);
}

} // namespace

void SequenceEditor::selectNeighbour(Direction direction)
{
    const bool isForward = direction == Direction::Forward;
    const auto& notes = document_.sequence().notes();
    const std::vector<Note> selected = document_.sequence().getSelection();
    Note from{.start = transport_.position()}; // no note has its identity, 0
    if (!selected.empty())
        from = isForward ? *std::ranges::max_element(selected, isPlacedBefore)
                         : *std::ranges::min_element(selected, isPlacedBefore);
    auto found = notes.end();
    for (auto note = notes.begin(); note != notes.end(); ++note) {
        const bool isBeyond = isForward ? isPlacedBefore(from, *note) : isPlacedBefore(*note, from);
        const bool isNearer = found == notes.end() || (isForward ? isPlacedBefore(*note, *found)
                                                                 : isPlacedBefore(*found, *note));
        if (isBeyond && isNearer)
            found = note;
    }
    if (found == notes.end())
        return;
    {
        const auto index = static_cast<std::size_t>(std::distance(notes.begin(), found));
        const auto edit = document_.edit();
        edit->deselect();
        edit->select(edit->at(index));
    }
    emit transport_.scrolled(document_.sequence().getSelection().front().start);
}

void SequenceEditor::moveSelection(int semitones, int steps)
{
    const std::vector<Note> notes = copy();
    if (notes.empty())
        return;
    beginChange();
    if (document_.reading() == Reading::Plain)
        move(semitones, steps, recorder_.snapToGrid() && steps != 0);
    else
        move(semitones, onGrid(notes.front().start, steps), false);
    finishMove();
    endChange();
}

double SequenceEditor::onGrid(double time, int steps) const
{
    constexpr double kBeside = 1e-3; // of a line on which the note begins already
    if (!recorder_.snapToGrid() || steps == 0)
        return steps;
    return (steps > 0 ? recorder_.snappedUp(time + kBeside) : recorder_.snapped(time - kBeside)) -
           time;
}

void SequenceEditor::move(double keys, double steps, bool snap)
{
    const std::vector<Note> notes = document_.sequence().getSelection();
    if (notes.empty())
        return;
    const auto [lowest, highest] = std::ranges::minmax_element(notes, {}, &Note::oldKey);
    const double least = -static_cast<double>(lowest->oldKey);
    const double greatest = static_cast<double>(kLastKey) - highest->oldKey;
    const double earliest = std::ranges::min(notes, {}, &Note::oldStart).oldStart;
    document_.edit(document_.sequence().selection())
        ->move(std::clamp(keys, least, greatest), std::max(steps, -std::max(earliest, 0.0)), snap);
}

void SequenceEditor::resizeSelection(int steps)
{
    if (copy().empty())
        return;
    beginChange();
    const std::vector<Note> before = copy();
    {
        const auto edit = document_.edit(document_.sequence().selection());
        const bool isPlain = document_.reading() == Reading::Plain;
        for (const Note& old : before) {
            const double change = isPlain ? steps : onGrid(old.start + old.length, steps);
            if (const double length = old.length + change; length > 0)
                edit->find(old.id)->length = length;
        }
        edit->update();
    }
    if (!std::ranges::equal(before, copy(), {}, &Note::length, &Note::length))
        document_.registerDone(present(before), SequenceDocument::editText(
                                                    QT_TRANSLATE_N_NOOP("velmora::SequenceDocument",
                                                                        "Resize %n Note(s)"),
                                                    before.size()));
    endChange();
}

void SequenceEditor::beginChange()
{
    transport_.stop();
    document_.registerTake();
    document_.edit()->update();
}

void SequenceEditor::endChange()
{
    document_.edit()->sort();
    document_.updateExtent();
    document_.practice().showKeys();
    emit transport_.frame();
}

} // namespace velmora
