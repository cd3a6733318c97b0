#include "sequencer/noteChanges.h"

#include "preferences/Preferences.h"
#include "sequencer/MusicalTime.h"
#include "sequencer/NotePreview.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace velmora {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Note noteAt(double start, double length, unsigned key = 60, unsigned channel = 0)
{
    static std::uint64_t id = 0;
    return {.id = ++id,
            .start = start,
            .length = length,
            .oldLength = length,
            .velocity = 0.5F,
            .channel = channel,
            .key = key,
            .oldStart = start,
            .oldKey = key};
}

/// "KEY@START+LENGTH" for each note that exists afterwards, in order of key and start.
std::vector<std::string> placesOf(std::vector<Note> notes)
{
    std::ranges::sort(notes, {}, [](const Note& n) { return std::pair(n.key, n.start); });
    std::vector<std::string> texts;
    for (const Note& n : notes)
        texts.push_back(fmt::format("{}@{:g}+{:g}", n.key, n.start, n.length));
    return texts;
}

std::vector<std::string> placesOf(const std::vector<NoteState>& states)
{
    std::vector<Note> notes;
    for (const NoteState& state : states)
        if (state.note)
            notes.push_back(*state.note);
    return placesOf(notes);
}

class NoteChangesTest : public SequenceTest {
protected:
    std::vector<std::string> notes() const { return placesOf(document_.sequence().notes()); }
    void undo() { document_.undoStack().undo(); }

    SequenceEditor editor_{document_};
};

} // namespace

TEST(Quantise, MovesNotesToAGridThatBeginsWithEachBar)
{
    MusicalTime time;
    const auto start = [&](double at, const Quantisation& grid) {
        const auto changes = quantised({noteAt(at, 3.0)}, grid, time);
        return changes.empty() ? at : changes.front().note->start;
    };
    EXPECT_EQ(start(2.9, {}), 2.0);
    EXPECT_EQ(start(3.1, {}), 4.0);
    EXPECT_EQ(start(3.0, {.strength = 0.5}), 2.5) << "half of the way";
    EXPECT_EQ(start(2.4, {.swing = 0.625}), 2.5);
    EXPECT_EQ(start(3.4, {.swing = 0.625}), 4.0) << "the swung line ends between them";
    EXPECT_THAT(start(5.0, {.unit = 8.0 / 3.0}), DoubleNear(16.0 / 3.0, 1e-9)) << "a triplet";
    time.setTimeSignatures({{0.0, 7, 16}}); // bars of 14 steps
    EXPECT_EQ(start(12.4, {.unit = 8.0}), 14.0) << "no beat, but the next bar";
    EXPECT_EQ(start(21.0, {.unit = 8.0}), 22.0);
}

TEST(Quantise, MovesEndsOnRequest)
{
    const MusicalTime time;
    const std::vector<Note> notes{noteAt(0.3, 3.4, 60), noteAt(4.2, 0.3, 62), noteAt(8.0, 2.0, 64)};
    EXPECT_THAT(placesOf(quantised(notes, {}, time)), ElementsAre("60@0+3.4", "62@4+0.3"))
        << "lengths are kept, and a note in place does not change";
    EXPECT_THAT(placesOf(quantised(notes, {.movesEnds = true}, time)),
                ElementsAre("60@0+4", "62@4+2"))
        << "the short note keeps a unit";
}

TEST(NoteChanges, KeepGroupsWholeAtTheEdges)
{
    const std::vector<Note> chord{noteAt(1.0, 4.0, 5), noteAt(2.0, 4.0, 120)};
    EXPECT_THAT(placesOf(transposed(chord, -12)), IsEmpty()) << "another key would be heard";
    EXPECT_THAT(placesOf(transposed(chord, 7)), ElementsAre("12@1+4", "127@2+4"));
    EXPECT_THAT(placesOf(nudged(chord, -8.0)), ElementsAre("5@0+4", "120@1+4"));
    EXPECT_THAT(placesOf(duplicated(chord, 12, -8.0)), ElementsAre("12@0+4", "127@1+4"));
}

TEST(NoteChanges, DivideJoinAndConnectNotes)
{
    EXPECT_THAT(placesOf(divided({noteAt(0.0, 4.0), noteAt(3.0, 1.0, 62)}, 3.0)),
                ElementsAre("60@0+3", "60@3+1"))
        << "a note that begins there stays whole";
    const auto whole = joined({noteAt(0.0, 2.0), noteAt(1.0, 0.5), noteAt(4.0, 2.0),
                               noteAt(0.0, 1.0, 62), noteAt(4.0, 1.0, 60, 1)});
    EXPECT_THAT(placesOf(whole), ElementsAre("60@0+6"));
    EXPECT_EQ(whole.size(), 3U) << "two notes are gone";
    const auto chords = legato({noteAt(0.0, 1.0), noteAt(0.3, 1.0, 64), noteAt(4.0, 9.0, 65),
                                noteAt(6.0, 1.0, 67), noteAt(5.0, 1.0, 40, 1)});
    EXPECT_THAT(placesOf(chords), ElementsAre("60@0+4", "64@0.3+3.7", "65@4+2"))
        << "rolled chords end together, and voices do not cut each other";
    EXPECT_EQ(revalued({noteAt(0.0, 1.0)}, [](const Note&) { return -1.0; }).front().note->velocity,
              1.0F / 127.0F)
        << "velocity 0 would be a release";
}

TEST_F(NoteChangesTest, AreUndoneExactly)
{
    add(60, 0.3, 4.0);
    add(60, 7.7, 1.3);
    add(64, 8.1, 1.0);
    const auto before = notes();
    const auto isExact = [&](auto edit, const char* text) {
        editor_.selectAll();
        edit();
        EXPECT_NE(notes(), before) << text;
        EXPECT_EQ(document_.undoStack().undoText(), text);
        const auto after = notes();
        undo();
        EXPECT_EQ(notes(), before) << text;
        document_.undoStack().redo();
        EXPECT_EQ(notes(), after) << text;
        undo();
    };
    transport_.setPosition(1.0);
    isExact([&] { editor_.quantise({}); }, "Quantise 3 Note(s)");
    isExact([&] { editor_.transpose(12); }, "Transpose 3 Note(s)");
    isExact([&] { editor_.nudge(0.125); }, "Move 3 Note(s)");
    isExact([&] { editor_.duplicate(); }, "Duplicate 3 Note(s)");
    isExact([&] { editor_.divide(); }, "Split 1 Note(s)");
    isExact([&] { editor_.join(); }, "Join 2 Note(s)");
    isExact([&] { editor_.connect(); }, "Connect 1 Note(s)");
}

TEST_F(NoteChangesTest, DuplicateRepeatsOnTheNextBeatOrAfterTheInterval)
{
    add(60, 1.0, 4.0);
    add(64, 9.0, 1.5);
    editor_.selectAll();
    editor_.duplicate();
    EXPECT_THAT(notes(), ElementsAre("60@1+4", "60@17+4", "64@9+1.5", "64@25+1.5"));
    EXPECT_THAT(document_.sequence().selection(), ElementsAre(3, 4)) << "the copies";
    EXPECT_EQ(transport_.extent(), 58.5);
    undo();
    editor_.selectAll();
    transport_.selectInterval(0.0, 20.0);
    editor_.duplicate();
    EXPECT_THAT(notes(), ElementsAre("60@1+4", "60@21+4", "64@9+1.5", "64@29+1.5"));
}

TEST_F(NoteChangesTest, DragsCopyNotesAndARubberBandSelectsThem)
{
    add(60, 1.0, 4.0);
    add(64, 2.0, 4.0);
    add(70, 8.0, 4.0);
    const auto drag = [&](RollPoint from, RollPoint to, Qt::KeyboardModifiers press,
                          Qt::KeyboardModifiers release) {
        editor_.mouseDown(from, press);
        editor_.mouseDragged(to);
        editor_.mouseUp(to, release);
    };
    const auto& selection = document_.sequence().selection();
    drag({65.0, 3.0}, {60.0, 0.0}, Qt::AltModifier, Qt::AltModifier);
    EXPECT_THAT(selection, ElementsAre(1, 2)) << "from any corner";
    EXPECT_TRUE(transport_.interval().isEmpty()) << "no time is selected";
    drag({71.0, 9.0}, {69.0, 10.0}, Qt::AltModifier | Qt::ShiftModifier, Qt::ShiftModifier);
    EXPECT_THAT(selection, ElementsAre(1, 2, 3));
    drag({60.0, 2.0}, {62.0, 12.0}, {}, Qt::ControlModifier);
    EXPECT_THAT(notes(), ElementsAre("60@1+4", "62@11+4", "64@2+4", "70@8+4"));
    EXPECT_THAT(selection, ElementsAre(4)) << "the copy";
    EXPECT_EQ(document_.undoStack().count(), 1);
    undo();
    EXPECT_THAT(notes(), ElementsAre("60@1+4", "64@2+4", "70@8+4"));

    setPrefBool("DragSelects", true);
    drag({72.0, 9.0}, {64.0, 5.0}, {}, {});
    EXPECT_THAT(selection, ElementsAre(2, 3));
    EXPECT_EQ(transport_.position(), 9.0) << "where the mouse was pressed";
    EXPECT_TRUE(transport_.interval().isEmpty());
    drag({59.0, 6.0}, {60.0, 4.0}, Qt::ShiftModifier, Qt::ShiftModifier);
    EXPECT_THAT(selection, ElementsAre(2, 3, 1)) << "besides the others";
    EXPECT_EQ(transport_.position(), 9.0);
    drag({70.0, 8.0}, {71.0, 8.0}, {}, {});
    EXPECT_EQ(notes().back(), "71@8+4") << "notes are dragged as ever";
    resetPref("DragSelects");
}

TEST_F(NoteChangesTest, ArrowsMoveTheFirstNoteFromLineToLine)
{
    SequenceDocument musical{*this, Reading::Musical, [this] { return now_; }};
    SequenceEditor editor(musical);
    editor.document().recorder().setGrid(Grid::Beats);
    editor.paste({noteAt(9.0, 1.0), noteAt(12.0, 1.0, 64)});
    musical.recorder().setSnapToGrid(true);
    const auto moved = [&](int steps) {
        editor.moveSelection(0, steps);
        return placesOf(musical.sequence().notes());
    };
    EXPECT_THAT(moved(1), ElementsAre("60@8+1", "64@11+1"));
    EXPECT_THAT(moved(1), ElementsAre("60@16+1", "64@19+1"));
    EXPECT_THAT(moved(-1), ElementsAre("60@8+1", "64@11+1"));
    EXPECT_THAT(moved(-1), ElementsAre("60@0+1", "64@3+1"));
    EXPECT_THAT(moved(-1), ElementsAre("60@0+1", "64@3+1"));
    musical.recorder().setSnapToGrid(false);
    EXPECT_THAT(moved(1), ElementsAre("60@1+1", "64@4+1"));
    EXPECT_THAT(moved(0), ElementsAre("60@1+1", "64@4+1"));

    const auto resized = [&](int steps) {
        editor.resizeSelection(steps);
        return placesOf(musical.sequence().notes());
    };
    EXPECT_THAT(resized(1), ElementsAre("60@1+2", "64@4+2"));
    musical.recorder().setSnapToGrid(true);
    EXPECT_THAT(resized(1), ElementsAre("60@1+7", "64@4+4")) << "to the end of the beat";
    EXPECT_THAT(resized(-1), ElementsAre("60@1+7", "64@4+4")) << "no note has no length";
    EXPECT_THAT(resized(1), ElementsAre("60@1+15", "64@4+12"));
    EXPECT_THAT(resized(-1), ElementsAre("60@1+7", "64@4+4"));
}

TEST_F(NoteChangesTest, PressedNotesSoundAndTheirVelocityIsDrawnNext)
{
    SequenceDocument musical{*this, Reading::Musical, [this] { return now_; }};
    SequenceEditor editor(musical);
    const auto draw = [&](double key) {
        editor.rightMouseDown({key, 1.0});
        editor.mouseUp({key, 1.0}, {});
    };
    draw(60.0);
    editor.changeVelocityAt({60.0, 1.5}, -0.5);
    editor.mouseDown({60.0, 1.0}, {});
    editor.mouseDragged({62.0, 1.0});
    editor.mouseUp({62.0, 1.0}, {});
    draw(64.0);
    EXPECT_THAT(calls_, ElementsAre("play 60 1.00", "stop 60", "play 60 0.50", "stop 60",
                                    "play 62 0.50", "stop 62", "play 64 0.50", "stop 64"));
    calls_.clear();
    setPrefBool("SoundNotes", false);
    draw(66.0);
    resetPref("SoundNotes");
    EXPECT_THAT(calls_, IsEmpty());
}

TEST_F(NoteChangesTest, APreviewLeavesNothingBehind)
{
    add(60, 0.3, 4.0);
    add(62, 3.1, 4.0);
    editor_.selectAll();
    const std::vector<Note> chosen = editor_.chosen();
    {
        NotePreview preview(document_);
        preview.show(quantised(chosen, {}, document_.time()));
        EXPECT_THAT(notes(), ElementsAre("60@0+4", "62@4+4"));
        preview.show(quantised(chosen, {.unit = 8.0}, document_.time()));
        EXPECT_THAT(notes(), ElementsAre("60@0+4", "62@0+4"));
    }
    EXPECT_THAT(notes(), ElementsAre("60@0.3+4", "62@3.1+4"));
    EXPECT_FALSE(document_.isModified());
    EXPECT_EQ(document_.sequence().selection().size(), 2U);
}

} // namespace velmora
