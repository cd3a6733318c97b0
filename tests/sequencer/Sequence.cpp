#include "sequencer/Sequence.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

Sequence sequenceOf(std::initializer_list<double> starts)
{
    Sequence sequence;
    for (const double start : starts)
        sequence.addNote({.start = start, .key = 60, .oldStart = start, .oldKey = 60});
    return sequence;
}

/// The identities in the order of the notes, each found at its place and flagged where selected.
std::vector<std::uint64_t> idsOf(Sequence& sequence)
{
    std::vector<std::uint64_t> ids;
    for (const Note& note : sequence.notes()) {
        EXPECT_EQ(sequence.find(note.id), &note);
        EXPECT_EQ(note.selected, std::ranges::count(sequence.selection(), note.id) > 0) << note.id;
        ids.push_back(note.id);
    }
    return ids;
}

} // namespace

TEST(Sequence, HandsOutEveryIdentityOnceAndFindsItsNote)
{
    Sequence sequence = sequenceOf({4.0, 2.0});
    Note gone = *sequence.find(2);
    gone.selected = true;
    sequence.erase(2);
    sequence.addNote({.start = 3.0});
    sequence.addNote(gone);
    sequence.addNote({.start = 1.0});
    EXPECT_THAT(idsOf(sequence), ElementsAre(1, 3, 2, 4)) << "what comes back is not selected";
    sequence.sort();
    sequence.erase(2);
    sequence.erase(2);
    EXPECT_THAT(idsOf(sequence), ElementsAre(4, 3, 1)) << "an unknown one removes nothing";
    for (const std::uint64_t id : {3, 4, 3})
        sequence.select(*sequence.find(id));
    sequence.erase();
    EXPECT_THAT(idsOf(sequence), ElementsAre(1));
    EXPECT_TRUE(sequence.selection().empty());
}

TEST(Sequence, KeepsFlagsAndSelectionTogether)
{
    Sequence sequence = sequenceOf({0.0, 1.0, 2.0});
    sequence.at(1).channel = 2;
    sequence.select();
    EXPECT_TRUE(sequence.select(0));
    EXPECT_THAT(sequence.selection(), ElementsAre(1, 3));
    sequence.deselect(sequence.at(0));
    EXPECT_THAT(idsOf(sequence), ElementsAre(1, 2, 3));
    EXPECT_FALSE(sequence.select(5)) << "no note of this channel";
    EXPECT_THAT(idsOf(sequence), ElementsAre(1, 2, 3));
}

TEST(Sequence, MovesFromTheCommittedPosition)
{
    Sequence sequence = sequenceOf({0.0, 4.0});
    sequence.select(sequence.at(0));
    const Note& note = sequence.notes()[0];
    const auto moved = [&](double keys, double steps, bool snap) {
        sequence.move(keys, steps, snap);
        return std::pair<int, double>(note.key, note.start);
    };
    EXPECT_EQ(moved(-0.5, 3.7, false), std::pair(59, 3.7));
    EXPECT_EQ(moved(0.7, 3.7, true), std::pair(60, 3.0));
    EXPECT_EQ(moved(-99.0, -0.2, true), std::pair(0, -1.0));
    EXPECT_EQ(moved(99.0, 5.0, false), std::pair(127, 5.0));
    EXPECT_EQ(sequence.notes()[1].start, 4.0) << "not selected";
    const Note record = note;
    sequence.update();
    EXPECT_EQ(moved(-1.0, 1.0, false), std::pair(126, 6.0)) << "committed";
    sequence.unmove(record);
    EXPECT_EQ(note.start, 0.0) << "the record's old position";
}
