#include "desktop/roll/TimeRuler.h"

#include "desktop/roll/KeyRuler.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QtTest>

namespace velmora {

namespace {

/// A calm roll whose steps are 8 pixels high.
class TimeRulerTest : public SequenceTest {
protected:
    TimeRulerTest()
    {
        scrollView.view().setDocument(&document_, &editor);
        scrollView.resize(400, 400);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        scrollView.updateSize(1000);
    }

    ~TimeRulerTest() override
    {
        scrollView.view().setDocument(nullptr, nullptr);
        resetPref("ReduceMotion");
    }

    QPoint at(double step) const { return {10, ruler.height() - 1 - static_cast<int>(step * 8)}; }

    void drag(double from, double to)
    {
        QTest::mousePress(&ruler, Qt::LeftButton, {}, at(from));
        QMouseEvent move(QEvent::MouseMove, at(to), ruler.mapToGlobal(at(to)), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&ruler, &move);
        QTest::mouseRelease(&ruler, Qt::LeftButton, {}, at(to));
    }

    SequenceEditor editor{document_};
    SequenceScrollView scrollView;
    TimeRuler& ruler = *scrollView.findChild<TimeRuler*>();
};

} // namespace

TEST_F(TimeRulerTest, MovesThePositionAndTheInterval)
{
    const Interval& interval = transport_.interval();
    drag(8, 16);
    EXPECT_EQ(transport_.position(), 8);
    EXPECT_EQ(interval.start, 8);
    EXPECT_EQ(interval.end, 16);
    drag(8, 12);
    EXPECT_EQ(transport_.position(), 12) << "the arrow lies over the end of the interval";
    EXPECT_EQ(interval.start, 8);
    drag(8, 20);
    EXPECT_EQ(interval.start, 16) << "the ends change places";
    EXPECT_EQ(interval.end, 20);
    recorder_.setSnapToGrid(true);
    drag(12, 30.6);
    EXPECT_EQ(transport_.position(), 30);
    QTest::mouseClick(&ruler, Qt::LeftButton, {}, at(4));
    EXPECT_EQ(transport_.position(), 4);
    EXPECT_TRUE(interval.isEmpty());
}

TEST_F(TimeRulerTest, TheKeyRulerShowsWhatPracticeWaitsFor)
{
    auto& keys = *scrollView.findChild<KeyRuler*>();
    add(60, 0, 4);
    scrollView.scrollTo({54 * 14, 0});
    const QImage before = keys.grab().toImage();
    practice_.midiInput();
    const QImage wanted = keys.grab().toImage();
    EXPECT_NE(wanted, before);
    press(61);
    practice_.midiInput();
    EXPECT_NE(keys.grab().toImage(), wanted) << "a wrong key";
}

TEST_F(TimeRulerTest, GlidesUnlessMotionIsReduced)
{
    const auto turn = [&](int y) {
        QWheelEvent event({100, 100}, scrollView.mapToGlobal(QPointF(100, 100)), {}, {0, y},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&scrollView, &event);
    };
    turn(240);
    EXPECT_EQ(scrollView.location().y(), 0) << "it has only begun";
    turn(240);
    QTest::keyClick(&scrollView.view(), Qt::Key_PageUp);
    const int page = scrollView.view().height();
    EXPECT_TRUE(QTest::qWaitFor([&] { return scrollView.location().y() == 256 + page; }));
    setPrefBool("ReduceMotion", true);
    turn(-120);
    EXPECT_EQ(scrollView.location().y(), 192 + page);

    QPointingDevice touchpad("touchpad", 1, QInputDevice::DeviceType::TouchPad,
                             QPointingDevice::PointerType::Finger, {}, 1, 1);
    for (int i = 0; i < 4; ++i) { // a quarter larger in all
        QNativeGestureEvent pinch(Qt::ZoomNativeGesture, &touchpad, 2, {100, 100}, {100, 100},
                                  scrollView.mapToGlobal(QPointF(100, 100)), 0.0625, {});
        QApplication::sendEvent(&scrollView, &pinch);
    }
    EXPECT_EQ(scrollView.scale().keyHeight, 10);
}

} // namespace velmora
