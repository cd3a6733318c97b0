#include "sequencer/NoteClipboard.h"
#include "sequencer/SequenceEditorTest.h"
#include "support/Log.h"

#include <gmock/gmock.h>

#include <string>

namespace velmora {

using testing::ElementsAre;
using testing::FieldsAre;
using testing::IsEmpty;
using testing::Key;
using testing::Pair;

namespace {

constexpr auto kNone = Qt::NoModifier;
constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kCommand = Qt::ControlModifier;

} // namespace

TEST_F(SequenceEditorTest, MovesANoteOrResizesItByItsEnd)
{
    add(60, 4.0, 4.0); // its last step, eight pixels, resizes it
    click({60.0, 5.0});
    EXPECT_EQ(undoText(), "") << "a click moves nothing";
    drag({60.0, 6.9}, {62.0, 7.4});
    EXPECT_THAT(notes()[1], FieldsAre(62, 4.5, 4.0, 0));
    EXPECT_EQ(undoText(), "Move 1 Note(s)");
    drag({62.0, 7.6}, {99.0, 6.0});
    EXPECT_THAT(notes()[1], FieldsAre(62, 4.5, 1.5, 0));
    EXPECT_EQ(transport_.extent(), 38.0);
    EXPECT_EQ(undoText(), "Resize 1 Note(s)");
    drag({62.0, 6.0}, {62.0, 1.0});
    EXPECT_THAT(notes(), IsEmpty()) << "resized to nothing";
    EXPECT_EQ(undoText(), "Delete 1 Note(s)");
    EXPECT_EQ(transport_.extent(), 0.0);
    undo();
    EXPECT_EQ(transport_.extent(), 38.0);
    undo();
    undo();
    type(Qt::Key_Escape);
    drag({60.0, 5.0}, {60.0, 6.5});
    EXPECT_THAT(notes()[1], FieldsAre(60, 5.5, 4.0, 0));
    recorder_.setSnapToGrid(true);
    drag({60.0, 5.9}, {-9.0, 3.3});
    EXPECT_THAT(notes()[1], FieldsAre(0, 3.0, 4.0, 0)) << "rounded down to a whole step";
    drag({0.0, 6.5}, {0.0, 8.1});
    EXPECT_THAT(notes()[1], FieldsAre(0, 3.0, 6.0, 0)) << "rounded up to a whole step";
}

TEST_F(SequenceEditorTest, DrawsWithTheRightButtonOrCommand)
{
    recorder_.setChannel(2);
    rightDrag({60.0, 4.5}, 4.5);
    rightDrag({61.0, 5.0}, 7.0);
    rightDrag({62.0, 5.0}, 4.0);
    editor_.mouseDown({500.0, 1.0}, kCommand);
    editor_.mouseUp({500.0, 1.0}, kCommand);
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(1, FieldsAre(60, 4.5, 1.0, 2)),
                                     FieldsAre(2, FieldsAre(61, 5.0, 2.0, 2)),
                                     FieldsAre(4, FieldsAre(127, 1.0, 1.0, 2))));
    EXPECT_THAT(selection(), ElementsAre(4));
    EXPECT_EQ(undoText(), "Draw Note");
}

TEST_F(SequenceEditorTest, SelectsNotesAndTheInterval)
{
    for (const double start : {2.0, 3.0, 20.0})
        add(60, start, 8.0);
    click({60.0, 4.0});
    EXPECT_THAT(selection(), ElementsAre(2)) << "the note on top";
    click({60.0, 4.0}, kShift);
    EXPECT_THAT(selection(), ElementsAre(1)) << "toggles every note under the mouse";

    drag({0.0, 9.0}, {0.0, 1.0});
    EXPECT_EQ(transport_.interval().start, 1.0);
    EXPECT_EQ(transport_.interval().end, 9.0);
    EXPECT_EQ(transport_.position(), 9.0) << "at the press";
    click({0.0, 2.0});
    click({0.0, 5.0}, kShift);
    EXPECT_EQ(transport_.interval().end, 5.0);
    EXPECT_THAT(selection(), ElementsAre(1, 2)) << "the first note was selected before";
    click({60.0, 2.5}, kShift);
    editor_.deleteSelection();
    EXPECT_EQ(undoText(), "Delete 1 Note(s)");
    EXPECT_THAT(notes(), ElementsAre(Key(1), Key(3)))
        << "the note that was taken out is still there";
}

TEST_F(SequenceEditorTest, StopsAGroupAtTheEdges)
{
    add(60, 1.0, 4.0);
    add(64, 2.5, 4.0);
    const auto drags = [&](double keys, double steps) {
        editor_.selectAll();
        editor_.mouseDown({60.0, 1.5}, kShift); // takes the first note out,
        editor_.mouseUp({60.0, 1.5}, kShift);
        editor_.mouseDown({60.0, 1.5}, kShift); // and in again
        editor_.mouseDragged({60.0 + keys, 1.5 + steps});
        editor_.mouseUp({60.0 + keys, 1.5 + steps}, kShift);
        const Notes moved = notes();
        undo();
        return moved;
    };
    const auto at = [](unsigned key, double start) { return FieldsAre(key, start, 4.0, 0); };
    EXPECT_THAT(drags(0.0, -5.0), ElementsAre(Pair(1, at(60, 0.0)), Pair(2, at(64, 1.5))));
    EXPECT_THAT(drags(-99.0, 0.0), ElementsAre(Pair(1, at(0, 1.0)), Pair(2, at(4, 2.5))));
    EXPECT_THAT(drags(99.0, 1.0), ElementsAre(Pair(1, at(123, 2.0)), Pair(2, at(127, 3.5))));
    recorder_.setSnapToGrid(true);
    EXPECT_THAT(drags(1.0, -5.0), ElementsAre(Pair(1, at(61, 0.0)), Pair(2, at(65, 1.0))));
    rightDrag({70.0, -2.0}, 1.0);
    EXPECT_THAT(notes()[3], FieldsAre(70, 0.0, 1.0, 0)) << "nothing is drawn before the beginning";
}

TEST_F(SequenceEditorTest, IdentifiesKeysByTheirPosition)
{
    add(60, 1.0, 1.0);
    type(Qt::Key_Eacute, kNone, 11); // the position of 2
    EXPECT_EQ(recorder_.channel(), 1);
    type(Qt::Key_0, kShift);
    EXPECT_EQ(recorder_.channel(), 19);
    type(Qt::Key_1);
    EXPECT_THAT(selection(), ElementsAre(1)) << "selects channel 0";
    type(Qt::Key_3, kCommand);
    EXPECT_THAT(notes()[1], FieldsAre(60, 1.0, 1.0, 2));
    undo();
    EXPECT_THAT(notes()[1], FieldsAre(60, 1.0, 1.0, 0));

    type(Qt::Key_Up);
    EXPECT_EQ(transport_.position(), 1.0);
    type(Qt::Key_Up, kCommand);
    EXPECT_EQ(transport_.position(), 8 * 34.0) << "the height of the roll";
    type(Qt::Key_Space);
    EXPECT_EQ(transport_.mode(), Transport::Mode::Playing);
    type(Qt::Key_Space);
    type(Qt::Key_Return);
    EXPECT_EQ(transport_.mode(), Transport::Mode::Recording);

    calls_.clear();
    const std::string log = logOf([&] {
        type(Qt::Key_F5, kNone, 71);
        type(Qt::Key_Shift, kShift, 50);
        editor_.keyDown({QEvent::KeyPress, Qt::Key_S, kCommand, 39, 0, 0});
    });
    EXPECT_EQ(log, "sequencer: case 71:\nsequencer: case 39:\n");
    EXPECT_EQ(calls_, Calls{}) << "a disabled shortcut plays nothing";
}

TEST_F(SequenceEditorTest, SilencesNotesThatAreEdited)
{
    add(60, 0.5, 8.0);
    transport_.play();
    const auto edited = [&](auto edit) {
        transport_.setPosition(0.0);
        tick(1.0);
        calls_.clear();
        edit();
        return calls_;
    };
    const Calls once{"stop 60"};
    EXPECT_EQ(edited([&] { drag({60.0, 2.0}, {60.0, 2.5}); }), once);
    EXPECT_EQ(edited([&] { undo(); }), once);
    editor_.selectAll();
    EXPECT_EQ(edited([&] { type(Qt::Key_3, kCommand); }), once);
    EXPECT_EQ(edited([&] { editor_.cut(); }), once);
}

TEST_F(SequenceEditorTest, ChoosesAndCorrectsNotesByCommands)
{
    using enum SequenceEditor::Direction;
    add(64, 2.0, 1.0);
    add(60, 2.0, 1.0);
    add(62, 7.5, 1.0);
    document_.edit()->sort();
    const auto select = [&](SequenceEditor::Direction direction) {
        editor_.selectNeighbour(direction);
        return selection();
    };
    transport_.setPosition(2.0);
    for (const std::uint64_t id : {2U, 1U, 3U, 3U})
        EXPECT_THAT(select(Forward), ElementsAre(id));
    for (const std::uint64_t id : {1U, 2U, 2U})
        EXPECT_THAT(select(Backward), ElementsAre(id));

    const Notes before = notes();
    editor_.moveSelection(1, 0);
    EXPECT_EQ(notes()[2], std::tuple(61, 2.0, 1.0, 0));
    EXPECT_EQ(undoText(), "Move 1 Note(s)");
    editor_.moveSelection(0, -5);
    EXPECT_EQ(notes()[2], std::tuple(61, 0.0, 1.0, 0)) << "it stops at the beginning";
    editor_.resizeSelection(2);
    EXPECT_EQ(notes()[2], std::tuple(61, 0.0, 3.0, 0));
    editor_.resizeSelection(-3);
    EXPECT_EQ(document_.undoStack().count(), 3) << "no note has no length";
    for (int edit = 0; edit < 3; ++edit)
        undo();
    EXPECT_EQ(notes(), before);
    EXPECT_EQ(document_.practice().stateOfNote(60), kWanted) << "again";

    editor_.selectAll();
    recorder_.setSnapToGrid(true);
    editor_.moveSelection(100, 1);
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(1, FieldsAre(127, 3.0, 1.0, 0)),
                                     FieldsAre(2, FieldsAre(123, 3.0, 1.0, 0)),
                                     FieldsAre(3, FieldsAre(125, 8.0, 1.0, 0))))
        << "a chord stays one at the edge";
}

TEST_F(SequenceEditorTest, KeepsTheOrderOfATakeAndEditsDuringIt)
{
    recorder_.record();
    liveKeys_.press(60, 1.0F, now_);
    tick(2.0);
    liveKeys_.release(60, now_);
    drag({60.0, 0.5}, {62.0, 0.5});
    recorder_.record();
    for (const char* done : {"Move 1 Note(s)", "Record 1 Note(s)", ""}) {
        EXPECT_EQ(undoText(), done);
        undo();
    }
    EXPECT_THAT(notes(), IsEmpty());
}

TEST_F(SequenceEditorTest, PastesAtThePosition)
{
    add(60, 3.0, 1.0);
    add(64, 4.5, 2.0);
    editor_.selectAll();
    const QByteArray bytes = encodeNotes(editor_.cut());
    EXPECT_EQ(undoText(), "Cut 2 Note(s)");
    transport_.setPosition(10.0);
    editor_.paste(decodeNotes(bytes));
    EXPECT_THAT(notes(), ElementsAre(FieldsAre(3, FieldsAre(60, 10.0, 1.0, 0)),
                                     FieldsAre(4, FieldsAre(64, 11.5, 2.0, 0))));
    EXPECT_THAT(selection(), ElementsAre(3, 4));
    EXPECT_EQ(transport_.extent(), 45.5);
    EXPECT_EQ(undoText(), "Paste 2 Note(s)");

    EXPECT_THAT(decodeNotes(bytes.chopped(1)), IsEmpty());
    QByteArray wrong = bytes;
    wrong.back() = '\x80';
    EXPECT_THAT(decodeNotes(wrong), IsEmpty()) << "the key is invalid";
    EXPECT_EQ(decodeNotes(encodeNotes({{.velocity = 2.0F}})).at(0).velocity, 1.0F);
}

TEST_F(SequenceEditorTest, AnnouncesAnEditOnce)
{
    add(60, 3.0, 1.0);
    int announced = 0;
    double seen = -1.0;
    QObject::connect(&document_, &SequenceDocument::changed, [&] {
        ++announced;
        seen = transport_.extent();
    });
    const auto times = [&](auto edit) {
        announced = 0;
        edit();
        return announced;
    };
    EXPECT_EQ(times([&] { editor_.selectAll(); }), 1);
    EXPECT_EQ(times([&] { editor_.paste(editor_.cut()); }), 2);
    EXPECT_EQ(times([&] { undo(); }), 1);
    EXPECT_EQ(times([&] { undo(); }), 1) << "the notes that were cut are back";
    const auto pasteInAnEdit = [&] {
        const auto edit = document_.edit();
        transport_.setPosition(50.0);
        announced = 0;
        editor_.paste(editor_.copy());
    };
    editor_.selectAll();
    EXPECT_EQ(times(pasteInAnEdit), 1);
    EXPECT_EQ(seen, 83.0) << "announced when the whole edit is done";
}

} // namespace velmora
