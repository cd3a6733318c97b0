#include "desktop/roll/KeyRuler.h"
#include "desktop/roll/Lanes.h"
#include "desktop/roll/SequenceActions.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TimeRuler.h"
#include "desktop/roll/VelocityLane.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QAction>
#include <QtTest>

namespace velmora {

namespace {

/// A roll of 14 pixels a key and 8 pixels a step in which time runs across, with its lane of
/// velocities.
class TimeAcrossTest : public SequenceTest {
protected:
    TimeAcrossTest()
    {
        setPrefBool("TimeRunsAcross", true);
        setPrefBool("ReduceMotion", true);
        scrollView.view().setDocument(&document_, &editor);
        scrollView.lanes().show(LaneKind::Velocities);
        scrollView.resize(700, 500);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        scrollView.updateSize(1000);
        QApplication::processEvents();
        scrollView.scrollTo({54 * 14, 0});
    }

    ~TimeAcrossTest() override
    {
        view.setDocument(nullptr, nullptr);
        resetPref("TimeRunsAcross");
        resetPref("ReduceMotion");
    }

    QPoint at(double key, double step) const
    {
        return {static_cast<int>(step * 8), view.height() - 1 - static_cast<int>((key - 54) * 14)};
    }

    static void drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button)
    {
        QTest::mousePress(&widget, button, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, button, {});
        QApplication::sendEvent(&widget, &move);
        QTest::mouseRelease(&widget, button, {}, to);
    }

    SequenceEditor editor{document_};
    SequenceScrollView scrollView;
    SequenceView& view = scrollView.view();
};

} // namespace

TEST(RollGeometry, ShowsTheSameWhicheverWayTimeRuns)
{
    RollGeometry geometry{14, 8, 300, 8000, 400, 300};
    const RollQuad step{geometry.xOf(40), geometry.xOf(41), geometry.yOf(1010), geometry.yOf(1011)};
    EXPECT_EQ(geometry.inView(step), QRectF(260, 212, 14, 8));
    geometry.isAcross = true;
    EXPECT_EQ(geometry.inView(step), QRectF(80, 126, 8, 14));
    for (int x = 80; x < 88; ++x)
        for (int y = 126; y < 140; ++y) {
            const RollPoint point = geometry.pointAt(x, y);
            EXPECT_EQ(point.key, 40) << y;
            EXPECT_EQ(std::floor(point.step), 1010) << x;
        }
    EXPECT_EQ(geometry.towards({3, 2}), QPoint(-2, 3)) << "right is later, down is lower";
}

TEST_F(TimeAcrossTest, NotesAreDrawnAndMovedAlongTheirRows)
{
    drag(view, at(60.5, 4.5), at(60.5, 12.4), Qt::RightButton);
    ASSERT_EQ(document_.sequence().notes().size(), 1U);
    const Note& note = document_.sequence().notes().front();
    EXPECT_EQ(note.key, 60U);
    EXPECT_NEAR(note.start, 4.5, 0.2);
    EXPECT_NEAR(note.length, 8.0, 0.2);

    drag(view, at(60.5, 6), at(64.5, 16), Qt::LeftButton);
    EXPECT_EQ(document_.sequence().notes().front().key, 64U);
    EXPECT_NEAR(document_.sequence().notes().front().start, 14.5, 0.3);
    transport_.setPosition(50);
    editor.keyDown({QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier});
    const QImage drawn = view.grabFramebuffer();
    const auto colour = [&](double key, double step) { return drawn.pixel(at(key, step)); };
    EXPECT_NE(colour(64.5, 18.1), colour(62.5, 18.1)) << "another white key";
    EXPECT_EQ(colour(64.5, 26.1), colour(62.5, 26.1)) << "after its end";
    EXPECT_EQ(drawn.pixel(at(64, 50) + QPoint(0, 5)), drawn.pixel(at(70, 50)))
        << "the position stands upright";
}

TEST_F(TimeAcrossTest, StripsLieAlongTheTime)
{
    const auto& time = *scrollView.findChild<TimeRuler*>();
    const auto& lane = *scrollView.findChild<VelocityLane*>();
    const auto& keys = *scrollView.findChild<KeyRuler*>();
    const auto place = [this](const QWidget& widget) {
        return QRect(widget.mapTo(&scrollView, QPoint()), widget.size());
    };
    const QRect roll = place(view);
    EXPECT_GT(roll.height(), 300);
    EXPECT_GT(roll.width(), 600);
    for (const QRect& strip : {place(time), place(lane)}) {
        EXPECT_EQ(strip.left(), roll.left());
        EXPECT_EQ(strip.width(), roll.width());
    }
    EXPECT_EQ(place(time).bottom() + 1, roll.top());
    EXPECT_EQ(place(lane).top(), roll.bottom() + 1);
    EXPECT_EQ(place(keys).right() + 1, roll.left());
    EXPECT_EQ(place(keys).height(), roll.height());

    setPrefBool("TimeRunsAcross", false);
    const RollGeometry before = view.rollGeometry();
    scrollView.updateSize(1000);
    const RollGeometry upright = view.rollGeometry();
    EXPECT_NEAR(before.x + before.width / 2, upright.x + upright.width / 2, 1.0)
        << "the middle key stays in the middle";
    EXPECT_EQ(place(time).right() + 1, place(view).left());
    EXPECT_EQ(place(lane).height(), view.height());
    EXPECT_EQ(place(keys).top(), place(view).bottom() + 1);
}

TEST_F(TimeAcrossTest, StripsAreEditedWhereTheyShowTheTime)
{
    add(60, 10, 2);
    add(60, 20, 2);
    auto& lane = *scrollView.findChild<VelocityLane*>();
    const auto ofVelocity = [&](double velocity) {
        return lane.height() - 5 - static_cast<int>(velocity * (lane.height() - 10));
    };
    drag(lane, {81, ofVelocity(0.5)}, {81, ofVelocity(0.25)}, Qt::LeftButton);
    EXPECT_NEAR(document_.sequence().notes()[0].velocity, 0.25, 0.03) << "upwards is louder";
    EXPECT_EQ(document_.sequence().notes()[1].velocity, 1.0F);

    auto& ruler = *scrollView.findChild<TimeRuler*>();
    drag(ruler, {160, 3}, {240, 3}, Qt::LeftButton);
    EXPECT_NEAR(transport_.position(), 20, 0.2);
    EXPECT_NEAR(transport_.interval().end, 30, 0.2);
}

TEST_F(TimeAcrossTest, ScrollsAndZoomsInTheDirectionThatIsSeen)
{
    const auto turn = [&](QPoint angle, Qt::KeyboardModifiers modifiers) {
        const QPoint point = view.mapTo(&scrollView, QPoint(200, 100));
        QWheelEvent event(point, scrollView.mapToGlobal(point), {}, angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&scrollView, &event);
    };
    turn({0, 120}, {});
    EXPECT_EQ(scrollView.location(), QPoint(54 * 14 + 64, 0)) << "to higher keys";
    turn({0, -240}, Qt::ShiftModifier);
    EXPECT_EQ(scrollView.location(), QPoint(54 * 14 + 64, 128)) << "to later times";
    const RollPoint before = view.rollGeometry().pointAt(200, 100);
    turn({0, 480}, Qt::ControlModifier);
    EXPECT_EQ(scrollView.scale(), (RollScale{14, 12}));
    EXPECT_NEAR(view.rollGeometry().pointAt(200, 100).step, before.step, 0.2);
    EXPECT_EQ(view.rollGeometry().pointAt(200, 100).key, before.key);

    const int keys = scrollView.location().x();
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(scrollView.location().x(), keys + 14);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(scrollView.location().x(), keys);
}

TEST(RollActions, ArrowsPointTheWayTheRollMoves)
{
    Commands commands;
    SequenceActions actions(commands);
    const auto shortcut = [&](const char* id) {
        return commands.find(id).action->shortcut().toString().toStdString();
    };
    EXPECT_EQ(shortcut("piece.next"), "Up");
    commands.setShortcut(*commands.find("edit.noteUp").action, Qt::ALT | Qt::Key_F9);
    QSignalSpy turns(&actions, &SequenceActions::rollTurned);
    QAction& across = *commands.find("view.timeAcross").action;
    across.trigger();
    EXPECT_EQ(turns.count(), 1);
    EXPECT_TRUE(getPrefBool("TimeRunsAcross"));
    EXPECT_EQ(shortcut("piece.next"), "Right");
    EXPECT_EQ(shortcut("edit.noteEarlier"), "Alt+Left");
    EXPECT_EQ(shortcut("edit.octaveDown"), "Alt+Shift+Down");
    EXPECT_EQ(shortcut("edit.noteUp"), "Alt+F9") << "the user's choice";
    {
        Commands later;
        const SequenceActions actionsLater(later);
        EXPECT_EQ(later.find("piece.next").action->shortcut(), QKeySequence(Qt::Key_Right))
            << "remembered";
    }
    commands.restoreDefaults();
    EXPECT_EQ(shortcut("edit.noteUp"), "Alt+Up");
    across.trigger();
    EXPECT_EQ(shortcut("edit.noteUp"), "Alt+Right");
    EXPECT_EQ(shortcut("piece.next"), "Up");
    resetPref("TimeRunsAcross");
}

} // namespace velmora
