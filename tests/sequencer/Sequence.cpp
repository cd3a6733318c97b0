#include "sequencer/Sequence.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Note noteAt(double start, std::uint32_t key = 60, std::uint32_t channel = 0)
{
    Note note;
    note.start = note.oldStart = start;
    note.length = note.oldLength = 1.0;
    note.key = note.oldKey = key;
    note.channel = channel;
    return note;
}

Sequence sequenceOf(std::initializer_list<double> starts)
{
    Sequence sequence;
    for (const double start : starts)
        sequence.addNote(noteAt(start));
    return sequence;
}

/// The identities in the order of the notes, once it is sure that each is found at its place.
std::vector<std::uint64_t> idsOf(Sequence& sequence)
{
    std::vector<std::uint64_t> ids;
    for (const Note& note : sequence.notes()) {
        EXPECT_EQ(sequence.find(note.id), &note);
        ids.push_back(note.id);
    }
    return ids;
}

} // namespace

TEST(Sequence, HandsOutEveryIdentityOnce)
{
    Sequence sequence = sequenceOf({0.0, 1.0});
    EXPECT_THAT(idsOf(sequence), ElementsAre(1, 2));
    Note gone = *sequence.find(2);
    sequence.erase(2);
    EXPECT_EQ(sequence.addNote(noteAt(5.0)).id, 3);

    gone.selected = true;
    EXPECT_FALSE(sequence.addNote(gone).selected) << "what comes back is not selected";
    EXPECT_THAT(idsOf(sequence), ElementsAre(1, 3, 2));
    EXPECT_EQ(sequence.addNote(noteAt(6.0)).id, 4);
    Note chosen = noteAt(7.0);
    chosen.selected = true;
    Note& stored = sequence.addNote(chosen);
    EXPECT_TRUE(stored.selected);
    sequence.deselect(stored);
    EXPECT_FALSE(stored.selected) << "although the selection does not name it";
}

TEST(Sequence, SortsByStartAndFindsEveryNoteAgain)
{
    Sequence sequence = sequenceOf({3.0, 1.0, 2.0, 0.0});
    sequence.sort();
    EXPECT_THAT(idsOf(sequence), ElementsAre(4, 2, 3, 1));
    sequence.erase(2);
    EXPECT_THAT(idsOf(sequence), ElementsAre(4, 3, 1));
    sequence.erase(2);
    EXPECT_THAT(idsOf(sequence), ElementsAre(4, 3, 1)) << "an unknown identity removes nothing";
}

TEST(Sequence, ErasesTheSelection)
{
    Sequence sequence = sequenceOf({4.0, 3.0, 2.0, 1.0});
    for (const std::uint64_t id : {3, 1, 3})
        sequence.select(*sequence.find(id));
    sequence.erase();
    EXPECT_THAT(idsOf(sequence), ElementsAre(4, 2));
    EXPECT_THAT(sequence.selection(), IsEmpty());

    sequence.erase(std::vector<Note>{*sequence.find(4)});
    EXPECT_THAT(idsOf(sequence), ElementsAre(2));
    sequence.select();
    sequence.erase();
    EXPECT_THAT(sequence.notes(), IsEmpty());
}

TEST(Sequence, KeepsFlagsAndSelectionTogether)
{
    Sequence sequence;
    for (const std::uint32_t channel : {1, 2, 1})
        sequence.addNote(noteAt(0.0, 60, channel));
    const auto flags = [&] {
        std::vector<bool> result;
        for (const Note& note : sequence.notes())
            result.push_back(note.selected);
        return result;
    };
    sequence.select();
    EXPECT_TRUE(sequence.select(1));
    EXPECT_THAT(sequence.selection(), ElementsAre(1, 3));
    EXPECT_THAT(flags(), ElementsAre(true, false, true));
    sequence.deselect(sequence.at(1));
    EXPECT_THAT(flags(), ElementsAre(true, false, true)) << "it was not selected";
    sequence.deselect(sequence.at(0));
    EXPECT_THAT(sequence.selection(), ElementsAre(3));
    EXPECT_FALSE(sequence.select(5));
    EXPECT_THAT(flags(), ElementsAre(false, false, false));

    sequence.select(sequence.at(2));
    sequence.select(sequence.at(0));
    EXPECT_EQ(sequence.getSelection().at(0).id, 3) << "in the order in which they were selected";
    sequence.channel(17);
    EXPECT_EQ(sequence.at(0).channel, 17);
    EXPECT_EQ(sequence.at(1).channel, 2);
    sequence.deselect();
    EXPECT_THAT(flags(), ElementsAre(false, false, false));
}

TEST(Sequence, MovesFromTheCommittedPosition)
{
    Sequence sequence = sequenceOf({0.0, 4.0});
    sequence.select(sequence.at(0));
    const Note& note = sequence.notes()[0];
    for (const auto& [keys, steps, snap, key, start] :
         std::vector<std::tuple<double, double, bool, std::uint32_t, double>>{
             {-0.5, 3.7, false, 59, 3.7},
             {0.7, 3.7, true, 60, 3.0},
             {1.0, -0.2, true, 61, -1.0},
             {-99.0, 0.0, false, 0, 0.0},
             {99.0, 0.0, false, 127, 0.0},
             {2.0, 5.0, false, 62, 5.0}}) {
        sequence.move(keys, steps, snap);
        EXPECT_EQ(note.key, key) << keys;
        EXPECT_EQ(note.start, start) << steps;
    }
    EXPECT_EQ(sequence.notes()[1].start, 4.0) << "not selected";

    Note record = note;
    record.length = 3.0;
    sequence.update();
    EXPECT_EQ(note.oldStart, 5.0);
    EXPECT_EQ(note.oldKey, 62);
    sequence.sort();
    sequence.unmove(record);
    EXPECT_EQ(sequence.find(1)->start, 0.0) << "the record's old position";
    EXPECT_EQ(sequence.find(1)->key, 60);
    sequence.move(record);
    EXPECT_EQ(sequence.find(1)->start, 5.0);
    sequence.size(record);
    EXPECT_EQ(sequence.find(1)->length, 3.0);
    sequence.unsize(record);
    EXPECT_EQ(sequence.find(1)->length, 1.0);
}
