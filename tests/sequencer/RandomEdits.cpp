#include "sequencer/MusicalTime.h"
#include "sequencer/NotePreview.h"
#include "sequencer/SequenceEditorTest.h"
#include "sequencer/noteChanges.h"

#include <array>
#include <functional>
#include <random>

namespace velmora {

namespace {

/// Deletes every note, in the place of another edit.
constexpr int kClear = 10;

class RandomEditsTest : public SequenceEditorTest {
protected:
    /// Performs one of nine commands for many notes.
    void changeMany(int command)
    {
        const Quantisation grid{.unit = 3.0, .strength = 0.7, .swing = 0.6, .movesEnds = true};
        const std::array<std::function<void()>, 9> commands{
            [&] { editor_.quantise(grid); },
            [&] { editor_.transpose(editor_.copy().size() % 2 == 0 ? 2 : -2); },
            [&] { editor_.nudge(-0.3); },
            [&] {
                if (selection().size() < 8) // or else the notes would become too many
                    editor_.duplicate();
            },
            [&] { editor_.divide(); },
            [&] { editor_.join(); },
            [&] { editor_.connect(); },
            [&] { editor_.changeVelocity(-0.1); },
            [&] {
                NotePreview preview(document_);
                preview.show(quantised(editor_.chosen(), grid, document_.time()));
            }};
        commands.at(static_cast<std::size_t>(command))();
    }
};

} // namespace

TEST_F(RandomEditsTest, UndoAndRedoEveryEdit)
{
    std::mt19937 random(3);
    const auto any = [&](unsigned count) { return static_cast<int>(random() % count); };
    const auto step = [&] { return any(80) * 0.25; };
    const auto place = [&] { return RollPoint{122.0 + any(6), step() - 1.0}; };
    QUndoStack& stack = document_.undoStack();
    std::map<int, Notes> states{{0, {}}}; // by the number of edits done
    for (int i = 0; i < 1500; ++i) {
        const int before = stack.index();
        const bool isFull = document_.sequence().notes().size() > 40; // more would only be slower
        const int what = isFull ? kClear : any(10);
        recorder_.setSnapToGrid(any(4) == 0);
        if (what == kClear) {
            editor_.selectAll();
            editor_.deleteSelection();
        } else if (what == 0) {
            rightDrag(place(), step());
        } else if (what <= 2) {
            drag(place(), place(), any(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        } else if (what == 3) {
            type(any(9) == 0 ? Qt::Key_Delete : Qt::Key_1 + any(4),
                 any(2) == 0 ? Qt::ControlModifier : Qt::NoModifier);
        } else if (what == 4) {
            editor_.paste(editor_.copy());
        } else if (what == 5) { // a recording with a gesture in the middle
            transport_.setPosition(step());
            recorder_.record();
            liveKeys_.press(122 + unsigned(any(6)), 1.0F, now_);
            tick(step() * 0.1);
            drag(place(), place());
            tick(step() * 0.1);
            recorder_.record();
            liveKeys_.clear();
        } else if (what == 6) {
            drag(place(), place(),
                 any(2) == 0 ? Qt::AltModifier : Qt::AltModifier | Qt::ShiftModifier);
        } else if (what == 7) {
            changeMany(any(9));
        } else {
            stack.setIndex(any(2) == 0 ? before - 1 : before + 1);
        }
        const int index = stack.index();
        if ((what <= 7 || what == kClear) &&
            index != before) { // after several edits only the last state is known
            states.erase(states.upper_bound(before), states.end());
            states[index] = notes();
        }
        const Notes now = notes();
        ASSERT_FALSE(HasFailure()) << i << ": the marks of the selection differ";
        ASSERT_TRUE(!states.contains(index) || now == states[index]) << i;
        const auto& sorted = document_.sequence().notes();
        ASSERT_TRUE(std::ranges::is_sorted(sorted, {}, &Note::start)) << i;
        ASSERT_TRUE(sorted.empty() || sorted.front().start >= 0.0) << i;
        for (const Note& note : sorted)
            ASSERT_LE(extentOf(note), transport_.extent()) << i;
    }
    for (const bool undone : {true, false}) {
        for (int index = 0; index <= stack.count(); ++index) {
            stack.setIndex(undone ? stack.count() - index : index);
            ASSERT_TRUE(!states.contains(stack.index()) || notes() == states[stack.index()]);
        }
    }
}

} // namespace velmora
