// The editor's commands that change many notes at once.

#include "sequencer/MusicalTime.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"
#include "sequencer/noteChanges.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

/// Times that should be equal may differ by this much.
constexpr double kBeatRounding = 1e-6;

double endOfLast(const std::vector<Note>& notes)
{
    double end = 0.0;
    for (const Note& note : notes)
        end = std::max(end, note.start + note.length);
    return end;
}

} // namespace

void SequenceEditor::select(const std::function<bool(const Note&)>& isWanted,
                            Qt::KeyboardModifiers modifiers)
{
    const auto edit = document_.edit();
    if (!modifiers.testFlag(Qt::ShiftModifier))
        edit->deselect();
    for (std::size_t i = 0; i < edit->notes().size(); ++i)
        if (Note& note = edit->at(i); isWanted(note))
            edit->select(note);
}

std::vector<Note> SequenceEditor::chosen() const
{
    std::vector<Note> notes = copy();
    if (!notes.empty())
        return notes;
    std::ranges::copy_if(document_.sequence().notes(), std::back_inserter(notes),
                         [&](const Note& note) { return !document_.sequence().isLocked(note); });
    return notes;
}

void SequenceEditor::quantise(const Quantisation& quantisation)
{
    change(quantised(chosen(), quantisation, document_.time()),
           QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Quantise %n Note(s)"));
}

void SequenceEditor::transpose(int semitones)
{
    change(transposed(copy(), semitones),
           QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Transpose %n Note(s)"));
}

void SequenceEditor::nudge(double steps)
{
    change(nudged(copy(), steps),
           QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Move %n Note(s)"));
}

void SequenceEditor::duplicate()
{
    const std::vector<Note> notes = copy();
    if (notes.empty())
        return;
    const Interval& interval = transport_.interval();
    const bool isWithin =
        std::ranges::all_of(notes, [&](const Note& note) { return interval.contains(note.start); });
    double distance = interval.end - interval.start;
    if (!isWithin) {
        const double first = notes.front().start;
        const double beat = document_.time().barAt(first).signature.beatLength();
        const double beats = std::ceil((endOfLast(notes) - first) / beat - kBeatRounding);
        distance = std::max(beats, 1.0) * beat;
    }
    copyBy(0, distance);
}

void SequenceEditor::copyBy(int semitones, double steps)
{
    selectOnly(change(duplicated(copy(), semitones, steps),
                      QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Duplicate %n Note(s)")));
}

void SequenceEditor::divide()
{
    std::vector<std::uint64_t> selected = document_.sequence().selection();
    const auto halves =
        change(divided(chosen(), transport_.position()),
               QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Split %n Note(s)"));
    if (selected.empty())
        return;
    selected.insert(selected.end(), halves.begin(), halves.end());
    selectOnly(selected);
}

void SequenceEditor::join()
{
    const std::vector<std::uint64_t> selected = document_.sequence().selection();
    change(joined(copy()), QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Join %n Note(s)"));
    selectOnly(selected);
}

void SequenceEditor::connect()
{
    change(legato(copy()), QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Connect %n Note(s)"));
}

void SequenceEditor::changeVelocity(double difference)
{
    setVelocity(copy(), [=](const Note& note) { return note.velocity + difference; });
}

void SequenceEditor::setVelocity(const std::vector<Note>& notes,
                                 const std::function<double(const Note&)>& velocity)
{
    std::vector<NoteState> changes = revalued(notes, velocity);
    if (changes.empty())
        return;
    recorder_.setVelocity(changes.back().note->velocity);
    change(std::move(changes),
           QT_TRANSLATE_N_NOOP("velmora::SequenceDocument", "Change Velocity of %n Note(s)"));
}

std::vector<std::uint64_t> SequenceEditor::change(std::vector<NoteState> changes, const char* text)
{
    if (changes.empty())
        return {};
    const auto known =
        std::ranges::count_if(changes, [](const auto& state) { return state.id != 0; });
    const auto count = known != 0 ? static_cast<std::size_t>(known) : changes.size();
    std::vector<std::uint64_t> ids =
        document_.perform(std::move(changes), SequenceDocument::editText(text, count));
    document_.updateExtent();
    return ids;
}

void SequenceEditor::selectOnly(const std::vector<std::uint64_t>& ids)
{
    const auto edit = document_.edit();
    edit->deselect();
    for (const std::uint64_t id : ids)
        if (Note* note = edit->find(id))
            edit->select(*note);
}

} // namespace velmora
