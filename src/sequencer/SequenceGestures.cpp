// The editor's gestures beyond moving and drawing: copying, the rubber band, and the sound of what
// is pressed.

#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <algorithm>
#include <utility>

namespace velmora {

void SequenceEditor::finishCopy()
{
    std::vector<NoteState> copies;
    for (Note note : copy()) {
        if (note.start == note.oldStart && note.key == note.oldKey)
            continue;
        note.id = note.origin = 0;
        note.oldStart = note.start;
        note.oldKey = note.key;
        copies.push_back({0, note});
    }
    {
        const auto edit = document_.edit(document_.sequence().selection());
        for (const std::uint64_t id : document_.sequence().selection()) {
            Note& note = *edit->find(id);
            note.start = note.oldStart;
            note.key = note.oldKey;
        }
        edit->sort();
    }
    if (!copies.empty())
        selectOnly(change(std::move(copies), QT_TRANSLATE_N_NOOP("velmora::SequenceDocument",
                                                                 "Duplicate %n Note(s)")));
}

void SequenceEditor::beginBand(RollPoint point)
{
    transport_.stop();
    document_.registerTake();
    hitNote_ = isNewNote_ = false;
    newNote_ = 0;
    band_ = {point, point};
}

void SequenceEditor::finishBand(Qt::KeyboardModifiers modifiers)
{
    const auto [one, other] = *std::exchange(band_, std::nullopt);
    const auto [lowest, highest] = std::minmax({wholeKey(one.key), wholeKey(other.key)});
    const auto [from, to] = std::minmax({one.step, other.step});
    const auto isTouched = [lowest = lowest, highest = highest, from = from,
                            to = to](const Note& note) {
        return lowest <= note.key && note.key <= highest && note.start <= to &&
               note.start + note.length >= from;
    };
    select(isTouched, modifiers);
}

void SequenceEditor::changeVelocityAt(RollPoint point, double difference)
{
    const Sequence& sequence = document_.sequence();
    const auto& notes = sequence.notes();
    const auto note = std::find_if(notes.rbegin(), notes.rend(), [&](const Note& each) {
        return rollHit(each, point, 1) != RollHit::Nothing && !sequence.isLocked(each);
    });
    if (note == notes.rend())
        return;
    setVelocity(note->selected ? copy() : std::vector{*note},
                [=](const Note& each) { return each.velocity + difference; });
}

void SequenceEditor::sound(const Note& note)
{
    silence();
    if (document_.reading() == Reading::Plain || !getPrefBool("SoundNotes"))
        return;
    sounding_ = note;
    document_.useVoices();
    transport_.host().play(static_cast<int>(note.key), note.velocity, channelOf(note), 0.0);
}

void SequenceEditor::silence()
{
    if (const auto note = std::exchange(sounding_, std::nullopt))
        transport_.host().stop(static_cast<int>(note->key), channelOf(*note), 0.0);
}

} // namespace velmora
