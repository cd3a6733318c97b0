#include "desktop/roll/SequenceView.h"

#include "desktop/roll/SequenceScrollView.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QPushButton>
#include <QtTest>
#include <gmock/gmock.h>

#include <array>
#include <cmath>

namespace velmora {

using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using testing::Le;

namespace {

constexpr QRgb kWhite = 0xffffff;
constexpr QRgb kBlackColumn = 0xb3b3b3;
constexpr QRgb kMiddleCColumn = 0xffffb3;

/// A roll that shows the keys from 54, each 14 pixels wide, and the steps from 0, each 8 pixels
/// high.
class SequenceViewTest : public SequenceTest {
protected:
    SequenceViewTest()
    {
        setPrefString("Scheme", "Classic");
        setPrefBool("ReduceMotion", true);
        QPalette palette;
        palette.setColor(QPalette::Highlight, Qt::blue);
        scrollView.setPalette(palette);
        view.setDocument(&document_, &editor);
        scrollView.resize(400, 400);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        scrollView.updateSize(1000);
        QApplication::processEvents(); // the ruler of bars has gone
        scrollView.scrollTo({54 * 14, 0});
    }

    ~SequenceViewTest() override
    {
        view.setDocument(nullptr, nullptr);
        for (const char* key : {"KeyWidth", "KeyHeight", "Scheme", "ReduceMotion"})
            resetPref(key);
    }

    Note& put(unsigned key, double start, double length, float velocity = 1.0F)
    {
        add(key, start, length);
        Note& note = document_.edit()->at(document_.sequence().notes().size() - 1);
        note.velocity = velocity;
        view.redraw();
        return note;
    }

    QImage drawn() { return view.grabFramebuffer(); }
    QRgb at(int x, int yUp) { return drawn().pixel(x, view.height() - 1 - yUp) & RGB_MASK; }

    /// The first and the last x between `from` and `to` at which a row differs from the background,
    /// as "first-last".
    std::string extent(int yUp, int from, int to, QRgb background)
    {
        const QImage image = drawn();
        int first = -1, last = -1;
        for (int x = from; x <= to; ++x) {
            if ((image.pixel(x, view.height() - 1 - yUp) & RGB_MASK) == background)
                continue;
            first = first < 0 ? x : first;
            last = x;
        }
        return fmt::format("{}-{}", first, last);
    }

    QPoint place(double key, double step) const
    {
        return {static_cast<int>((key - 54) * 14), view.height() - 1 - static_cast<int>(step * 8)};
    }

    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {},
              Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&view, button, modifiers, from);
        QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, button,
                         modifiers);
        QApplication::sendEvent(&view, &move);
        QTest::keyClick(&view, Qt::Key_Escape); // must not deselect what is dragged
        QTest::mouseRelease(&view, button, modifiers, to);
    }

    /// "KEY@START+LENGTH" for each note, with a star if it is selected.
    std::vector<std::string> notes() const
    {
        std::vector<std::string> shown;
        for (const Note& note : document_.sequence().notes())
            shown.push_back(fmt::format("{}@{}+{}{}", note.key, note.start, note.length,
                                        note.selected ? "*" : ""));
        return shown;
    }

    SequenceEditor editor{document_};
    SequenceScrollView scrollView;
    SequenceView& view = scrollView.view();
};

bool isNear(QRgb color, QRgb other)
{
    return std::abs(qRed(color) - qRed(other)) < 4 && std::abs(qGreen(color) - qGreen(other)) < 4 &&
           std::abs(qBlue(color) - qBlue(other)) < 4;
}

} // namespace

TEST(RollGeometry, FindsTheStepAndKeyAtAPixel)
{
    const RollGeometry geometry{14, 8, 300, 8'000'000, 400, 300};
    for (int pixel = 0; pixel < 300; ++pixel) {
        const RollPoint point = geometry.pointAt(pixel, 299 - pixel);
        const int step = static_cast<int>(std::floor(point.step));
        const int key = static_cast<int>(point.key);
        EXPECT_TRUE(geometry.yOf(step) <= pixel && pixel < geometry.yOf(step + 1)) << pixel;
        EXPECT_TRUE(geometry.xOf(key) <= pixel && pixel < geometry.xOf(key + 1)) << pixel;
    }
    EXPECT_EQ(geometry.pointAt(-2000, 0).key, 0);
    EXPECT_EQ(geometry.pointAt(9000, 0).key, 127);

    const Note note{.start = 3, .length = 2, .key = 60};
    const std::vector<std::pair<double, RollHit>> rows = {
        {2.9, RollHit::Nothing},  {3.0, RollHit::Note},    {4.0, RollHit::Note},
        {4.01, RollHit::NoteEnd}, {5.0, RollHit::NoteEnd}, {5.1, RollHit::Nothing}};
    for (const auto& [step, hit] : rows)
        EXPECT_EQ(rollHit(note, {60, step}, 8), hit) << step;
    EXPECT_EQ(rollHit(note, {61, 4}, 8), RollHit::Nothing);
}

TEST(RollIndex, VisitsTheNotesInATimeRangeInListOrder)
{
    std::vector<Note> notes;
    for (unsigned i = 0; i < 1000; ++i)
        notes.push_back({.start = std::fmod(i * 377.0, 1000.0), .length = i % 50 + 0.5, .key = i});
    RollIndex index;
    index.rebuild(notes);
    for (const double from : {0.0, 90.25, 500.0, 999.0, 2000.0}) {
        std::vector<unsigned> expected, visited;
        for (const Note& note : notes)
            if (note.start <= from + 7 && note.start + note.length >= from)
                expected.push_back(note.key);
        index.visit(notes, from, from + 7, [&](const Note& note) { visited.push_back(note.key); });
        EXPECT_EQ(visited, expected) << from;
    }
}

TEST_F(SequenceViewTest, DrawsColumnsGridIntervalAndPosition)
{
    EXPECT_EQ(at(7, 12), kBlackColumn);
    EXPECT_EQ(at(14 + 7, 12), kWhite);
    EXPECT_EQ(at(6 * 14 + 7, 12), kMiddleCColumn);
    EXPECT_EQ(at(18 * 14 + 7, 12), kWhite) << "only middle C is tinted";
    EXPECT_EQ(extent(12, 6 * 14 - 7, 7 * 14 - 1, kMiddleCColumn), "77-84")
        << "the line, then the column";
    EXPECT_EQ(at(6 * 14, 12), 0x4d4d4d);
    EXPECT_EQ(at(21, 8), 0xcccccc);
    EXPECT_EQ(at(21, 64), 0x999999);
    EXPECT_EQ(at(21, 0), 0x0000ff) << "the play position";
    transport_.selectInterval(2, 4);
    transport_.setPosition(9.5);
    EXPECT_EQ(at(21, 0), 0x999999);
    EXPECT_EQ(at(21, 76), 0x0000ff);
    EXPECT_TRUE(isNear(at(21, 17), 0xbfbfff)) << "a tint half-way to white, at half opacity";
    EXPECT_TRUE(isNear(at(21, 31), 0xbfbfff));
    EXPECT_EQ(at(21, 15), kWhite);
    EXPECT_EQ(at(21, 33), kWhite);
    scrollView.scrollToStep(1);
    EXPECT_EQ(at(21, 68), 0x0000ff) << "the picture scrolls as a whole";
}

TEST_F(SequenceViewTest, DrawsNotesByVelocityStateAndTime)
{
    put(55, 8, 4);
    EXPECT_TRUE(isNear(at(21, 65), 0xff0c0c)) << "near the onset";
    EXPECT_TRUE(isNear(at(21, 95), 0xffeeee)) << "near the end";
    EXPECT_EQ(at(21, 63), kWhite);
    EXPECT_EQ(at(21, 97), kWhite);
    EXPECT_EQ(extent(67, 15, 27, kWhite), "16-24");
    put(57, 8, 4, 0.0F);
    EXPECT_EQ(extent(67, 43, 55, kWhite), "47-49");

    Note& note = put(59, 8, 4);
    note.active = true;
    EXPECT_TRUE(isNear(at(77, 65), 0x0cff0c));
    note.selected = true;
    EXPECT_TRUE(isNear(at(77, 65), 0x0c0cff));
    put(55, 8, 4).active = true;
    EXPECT_TRUE(isNear(at(21, 65), 0x0bf401)) << "the later note is on top";
    setPrefInt("KeyWidth", 6);
    scrollView.updateSize(1000);
    scrollView.scrollTo({54 * 6, 0});
    EXPECT_EQ(extent(67, 7, 11, kWhite), "7-9");
    setPrefInt("KeyHeight", 2);
    scrollView.updateSize(1000);
    EXPECT_EQ(at(9, 160), 0x999999);
    EXPECT_EQ(at(9, 162), kWhite) << "only the bar lines are drawn";
}

TEST_F(SequenceViewTest, SelectsMovesAndResizesNotesWithTheMouse)
{
    put(60, 4, 4);
    put(64, 4, 4);
    QTest::mouseClick(&view, Qt::LeftButton, {}, place(60.5, 5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4*", "64@4+4"));
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, place(64.5, 5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4*", "64@4+4*"));
    QTest::mouseClick(&view, Qt::LeftButton, {}, place(64.5, 5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "64@4+4*"));

    drag(place(64.5, 5), place(66.5, 6.5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "66@5.5+4*"));
    recorder_.setSnapToGrid(true);
    drag(place(66.5, 6), place(65.5, 7.5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "65@6+4*"));
    document_.undoStack().undo();
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "66@5.5+4*"));

    drag(place(60.5, 7.5), place(60.5, 9.25));
    EXPECT_THAT(notes(), ElementsAre("60@4+6*", "66@5.5+4"));
    drag(place(60.5, 9.5), place(60.5, 2));
    EXPECT_THAT(notes(), ElementsAre("66@5.5+4"));
    document_.undoStack().undo();
    EXPECT_THAT(notes(), ElementsAre("60@4+6", "66@5.5+4"));
}

TEST_F(SequenceViewTest, DrawsNewNotesWithTheRightButtonOrControl)
{
    recorder_.setSnapToGrid(true);
    drag(place(60.5, 4.5), place(60.5, 7.5), {}, Qt::RightButton);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ControlModifier, place(62.5, 4.5));
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "62@4+1*"));
    drag(place(64.5, 4.5), place(64.5, 2), {}, Qt::RightButton);
    EXPECT_THAT(notes(), ElementsAre("60@4+4", "62@4+1"));
    EXPECT_EQ(document_.undoStack().count(), 2);

    QTest::mousePress(&view, Qt::LeftButton, {}, place(70.5, 4.5));
    QTest::mousePress(&view, Qt::RightButton, {}, place(70.5, 4.5));
    QTest::mouseRelease(&view, Qt::RightButton, {}, place(70.5, 4.5));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, place(70.5, 4.5));
    EXPECT_EQ(notes().size(), 2) << "one gesture at a time";
}

TEST_F(SequenceViewTest, SelectsAnIntervalAndLoopsInIt)
{
    put(60, 2, 1);
    put(62, 6, 1);
    drag(place(70.5, 8), place(70.5, 4));
    EXPECT_EQ(transport_.interval().start, 4);
    EXPECT_EQ(transport_.interval().end, 8);
    transport_.setLoop(true);
    QTest::keyClick(&view, Qt::Key_Space);
    tick(0.5);
    tick(0.5);
    tick(7.5);
    EXPECT_EQ(transport_.position(), 4);
    EXPECT_EQ(transport_.mode(), Transport::Mode::Playing);
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(transport_.mode(), kStopped);

    QTest::mouseClick(&view, Qt::LeftButton, {}, place(70.5, 1));
    QTest::mouseClick(&view, Qt::LeftButton, Qt::ShiftModifier, place(70.5, 7));
    EXPECT_THAT(notes(), ElementsAre("60@2+1*", "62@6+1*"));
    QTest::keyClick(&view, Qt::Key_Delete);
    EXPECT_THAT(notes(), IsEmpty());
}

TEST_F(SequenceViewTest, ScrollsWhileTheMouseDragsBeyondTheEdge)
{
    QTest::mousePress(&view, Qt::LeftButton, {}, place(70.5, 4));
    const QPoint above(200, -40);
    QMouseEvent move(QEvent::MouseMove, above, view.mapToGlobal(above), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&view, &move);
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrollView.location().y() > 100; }));
    EXPECT_GT(transport_.interval().end, (view.height() + 100) / 8);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, above);
    const int y = scrollView.location().y();
    QTest::qWait(60);
    EXPECT_EQ(scrollView.location().y(), y);
}

TEST_F(SequenceViewTest, ShowsByTheCursorWhatAPressWouldDo)
{
    put(60, 4, 4);
    const auto shapeAt = [&](double key, double step, Qt::KeyboardModifiers modifiers = {}) {
        QCursor::setPos(view.mapToGlobal(place(key, step)));
        QMouseEvent move(QEvent::MouseMove, place(key, step), QCursor::pos(), Qt::NoButton,
                         Qt::NoButton, modifiers);
        QApplication::sendEvent(&view, &move);
        return view.cursor().shape();
    };
    EXPECT_EQ(shapeAt(60.5, 5), Qt::SizeAllCursor);
    EXPECT_EQ(shapeAt(60.5, 7.5), Qt::SizeVerCursor);
    EXPECT_EQ(shapeAt(60.5, 9), Qt::ArrowCursor);
    EXPECT_EQ(shapeAt(60.5, 9, Qt::ControlModifier), Qt::CrossCursor);
}

TEST_F(SequenceViewTest, ScrollsWithKeysToTheEndOfAVeryLongSequence)
{
    QSignalSpy scrolls(&scrollView, &SequenceScrollView::scrolledByUser);
    const int x = scrollView.location().x();
    const std::pair<Qt::Key, QPoint> rows[] = {
        {Qt::Key_Right, {x + 14, 0}},         {Qt::Key_Left, {x, 0}},
        {Qt::Key_PageUp, {x, view.height()}}, {Qt::Key_PageDown, {x, 0}},
        {Qt::Key_End, {x, 1'000'000'000}},    {Qt::Key_Home, {x, 0}}};
    scrollView.updateSize(1e300);
    for (const auto& [key, place] : rows) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(scrollView.location(), place) << key;
    }
    EXPECT_EQ(scrolls.count(), 6);
}

TEST_F(SequenceViewTest, ScrollsAndZoomsWithTheWheelAroundTheMouse)
{
    QSignalSpy scrolls(&scrollView, &SequenceScrollView::scrolledByUser);
    const QPoint point(100, 150);
    const auto turn = [&](int y, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(point, scrollView.mapToGlobal(point), {}, {0, y}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&scrollView, &event);
    };
    turn(1200, {});
    EXPECT_EQ(scrollView.location(), QPoint(54 * 14, 640));
    EXPECT_EQ(scrolls.count(), 1);

    const RollPoint before = view.rollGeometry().pointAt(point.x(), point.y());
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(scrollView.scale(), (RollScale{14, 9}));
    turn(240, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(scrollView.scale(), (RollScale{16, 9}));
    const RollPoint after = view.rollGeometry().pointAt(point.x(), point.y());
    EXPECT_EQ(after.key, before.key);
    EXPECT_NEAR(after.step, before.step, 0.2);
    turn(-12000, Qt::ControlModifier);
    EXPECT_EQ(scrollView.scale().keyHeight, prefRange("KeyHeight").least);
    scrollView.scrollToStep(-50);
    EXPECT_EQ(scrollView.location().y(), 0);
    scrollView.scrollToStep(1e9);
    EXPECT_EQ(scrollView.location().y(), 1000 - view.height());

    EXPECT_EQ(SequenceScrollView().scale(), (RollScale{14, 8})) << "each roll has its own zoom";
    setPrefInt("KeyWidth", 20);
    scrollView.updateSize(1000);
    EXPECT_EQ(scrollView.scale(), (RollScale{20, 8})) << "the preferences replace it";
}

TEST_F(SequenceViewTest, ZoomsToTheSelectionAndToAllNotes)
{
    const auto edges = [this] { // of the view, in keys and steps
        const RollPoint low = view.rollGeometry().pointAt(0, view.height() - 1);
        const RollPoint high = view.rollGeometry().pointAt(view.width(), 0);
        return std::array{low.key, high.key, low.step, high.step};
    };
    put(20, 0, 40);
    put(100, 960, 40);
    put(60, 500, 4);
    scrollView.zoomToAll();
    const auto [lowest, highest, first, last] = edges();
    EXPECT_THAT(lowest, AllOf(Le(20), Ge(0)));
    EXPECT_THAT(highest, AllOf(Ge(101), Le(127)));
    EXPECT_EQ(first, 0);
    EXPECT_LT(last, 1000) << "a step has at least a pixel";

    document_.edit()->select(document_.edit()->at(2));
    scrollView.zoomToSelection();
    const auto [left, right, bottom, top] = edges();
    EXPECT_NEAR(left + right, 2 * 60.5, 2.0);
    EXPECT_THAT(right - left, AllOf(Ge(24), Le(36)));
    EXPECT_NEAR(bottom + top, 2 * 502, 3.0);
    EXPECT_THAT(top - bottom, AllOf(Ge(32), Le(40)));

    scrollView.resize(300, 400);
    const auto narrow = edges();
    EXPECT_NEAR(narrow[0] + narrow[1], left + right, 1.0) << "the middle key stays there";
}

TEST_F(SequenceViewTest, LeadsToNotesThatTheKeyboardDoesNotShow)
{
    const auto texts = [this] {
        QStringList shown;
        for (const auto* text : view.findChildren<QPushButton*>())
            if (text->isVisible())
                shown += text->text().replace("(s)", "s"); // translated or not
        return shown;
    };
    put(108, 2, 1);
    put(21, 2, 1);
    EXPECT_THAT(texts(), IsEmpty()) << "the keyboard goes from A0 to C8";
    put(20, 700, 1);
    put(19, 800, 1);
    put(109, 900, 1);
    put(110, 500, 1);
    EXPECT_THAT(texts(), ElementsAre("2 notes below A0", "2 notes above C8"));
    auto* above = view.findChildren<QPushButton*>().back();
    above->click();
    const RollGeometry shown = view.rollGeometry();
    EXPECT_TRUE(shown.firstKey() <= 110 && 110 < shown.endKey());
    EXPECT_TRUE(shown.bottomStep() < 500 && 500 < shown.topStep()) << "the earlier one";
    setPrefInt("KeyRangeHi", 110);
    scrollView.updateSize(1000);
    EXPECT_THAT(texts(), ElementsAre("2 notes below A0"));
    resetPref("KeyRangeHi");
}

} // namespace velmora
