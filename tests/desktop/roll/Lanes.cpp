#include "desktop/roll/Lanes.h"

#include "desktop/roll/QuantiseDialog.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/VelocityLane.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QComboBox>
#include <QtTest>
#include <gmock/gmock.h>

#include <cmath>

namespace velmora {

using testing::ElementsAre;

namespace {

/// Four notes, two steps apart, and the lane of their velocities beside a roll of eight pixels a
/// step.
class LanesTest : public SequenceTest {
protected:
    LanesTest()
    {
        setPrefBool("ReduceMotion", true);
        for (const double start : {2.0, 4.0, 6.0, 8.0})
            add(60, start, 1.0);
        scrollView.view().setDocument(&document_, &editor);
        scrollView.lanes().show(LaneKind::Velocities);
        scrollView.resize(500, 400);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        scrollView.updateSize(1000);
        QApplication::processEvents();
    }
    ~LanesTest() override
    {
        scrollView.view().setDocument(nullptr, nullptr);
        resetPref("ReduceMotion");
    }

    /// Drags from one place in the lane to another; each is a velocity and a step.
    void drag(std::pair<double, double> from, std::pair<double, double> to,
              Qt::KeyboardModifiers modifiers = {})
    {
        const auto place = [&](std::pair<double, double> point) {
            return QPoint(static_cast<int>(std::lround(5 + point.first * (lane.width() - 10))),
                          lane.height() - static_cast<int>(point.second * 8));
        };
        QTest::mousePress(&lane, Qt::LeftButton, modifiers, place(from));
        for (const double part : {0.5, 1.0}) { // a detour, which only a straight line forgets
            const QPoint point = place(
                {part < 1.0 ? 0.1 : to.first, from.second + (to.second - from.second) * part});
            QMouseEvent move(QEvent::MouseMove, point, lane.mapToGlobal(point), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(&lane, &move);
        }
        QTest::mouseRelease(&lane, Qt::LeftButton, modifiers, place(to));
    }

    /// The velocities of the notes in tenths.
    std::vector<int> velocities() const
    {
        std::vector<int> tenths;
        for (const Note& note : document_.sequence().notes())
            tenths.push_back(static_cast<int>(std::lround(note.velocity * 10)));
        return tenths;
    }

    SequenceEditor editor{document_};
    SequenceScrollView scrollView;
    VelocityLane& lane = *scrollView.findChild<VelocityLane*>();
};

} // namespace

TEST_F(LanesTest, VelocitiesAreDrawnOverBars)
{
    ASSERT_TRUE(lane.isVisible());
    drag({0.2, 2.0}, {0.8, 8.0}, Qt::ShiftModifier);
    EXPECT_THAT(velocities(), ElementsAre(2, 4, 6, 8)) << "a straight line";
    EXPECT_TRUE(document_.undoStack().undoText().startsWith("Change Velocity of 4 Note"));
    document_.undoStack().undo();
    EXPECT_THAT(velocities(), ElementsAre(10, 10, 10, 10));
    drag({0.3, 4.0}, {0.5, 4.0});
    EXPECT_THAT(velocities(), ElementsAre(10, 5, 10, 10)) << "one bar is pulled";
    editor.select([](const Note& note) { return note.start == 6.0; }, Qt::NoModifier);
    drag({0.7, 2.0}, {0.7, 8.0}, Qt::ShiftModifier);
    EXPECT_THAT(velocities(), ElementsAre(10, 5, 7, 10)) << "only the selected note";
    Voices voices = document_.voices();
    voices[0].isLocked = true;
    document_.mixVoices(voices);
    drag({0.1, 2.0}, {0.1, 8.0}, Qt::ShiftModifier);
    EXPECT_THAT(velocities(), ElementsAre(10, 5, 7, 10)) << "the voice is locked";
    scrollView.lanes().show(LaneKind::None);
    EXPECT_FALSE(scrollView.lanes().isVisible());
}

TEST_F(LanesTest, QuantisingShowsWhatItWillDoAndTakesItBack)
{
    const auto starts = [&] {
        std::vector<double> steps;
        for (const Note& note : document_.sequence().notes())
            steps.push_back(note.start);
        return steps;
    };
    for (const bool accepts : {false, true}) {
        QuantiseDialog dialog(document_, editor, {.unit = 8.0}, nullptr);
        EXPECT_THAT(starts(), ElementsAre(0.0, 0.0, 8.0, 8.0)) << "before it is decided";
        dialog.findChild<QComboBox*>()->setCurrentText("1/2");
        EXPECT_THAT(starts(), ElementsAre(0.0, 0.0, 0.0, 0.0));
        dialog.done(accepts ? QDialog::Accepted : QDialog::Rejected);
        EXPECT_EQ(dialog.choice().unit, 16.0);
        EXPECT_EQ(document_.undoStack().count(), accepts ? 1 : 0);
        EXPECT_EQ(starts().back(), accepts ? 0.0 : 8.0);
    }
}

} // namespace velmora
