#include "desktop/roll/TimeLane.h"

#include "desktop/roll/Lanes.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TimeEntryDialog.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceEditor.h"
#include "support/SequenceTest.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QTimer>
#include <QtTest>

namespace velmora {

namespace {

/// The lane beside a roll of eight pixels a step.
class TimeLaneTest : public SequenceTest {
protected:
    TimeLaneTest()
    {
        setPrefBool("ReduceMotion", true);
        scrollView.view().setDocument(&musical, &editor);
        scrollView.lanes().show(LaneKind::Time);
        scrollView.resize(700, 400);
        scrollView.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&scrollView));
        scrollView.updateSize(1000);
        QApplication::processEvents();
    }
    ~TimeLaneTest() override
    {
        scrollView.view().setDocument(nullptr, nullptr);
        resetPref("ReduceMotion");
    }

    /// A place in one of the four columns, a little above a step.
    QPoint at(int column, double step) const
    {
        return {(2 * column + 1) * lane.width() / 8,
                lane.height() - 5 - static_cast<int>(step * 8)};
    }

    /// Fills in and accepts the dialog that opens during `act`.
    template <class Fill, class Act> void answer(const Fill& fill, const Act& act)
    {
        bool isAsked = false;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            isAsked = true;
            fill(*dialog);
            dialog->accept();
        });
        act();
        EXPECT_TRUE(isAsked);
    }

    SequenceDocument musical{*this, Reading::Musical, [this] { return now_; }};
    SequenceEditor editor{musical};
    SequenceScrollView scrollView;
    TimeLane& lane = *scrollView.findChild<TimeLane*>();
};

} // namespace

TEST_F(TimeLaneTest, AddsChangesMovesAndRemovesWhatItShows)
{
    const MusicalTime& time = musical.time();
    answer(
        [](QDialog& dialog) {
            dialog.findChildren<QComboBox*>().at(0)->setCurrentText("1/8");
            for (auto* box : dialog.findChildren<QSpinBox*>())
                if (box->value() == 4)
                    box->setValue(6);
        },
        [&] { QTest::mouseDClick(&lane, Qt::LeftButton, {}, at(1, 0)); });
    ASSERT_EQ(time.timeSignatures(), (std::vector<TimeSignature>{{0.0, 6, 8}}));

    answer([](QDialog& dialog) { dialog.findChildren<QDoubleSpinBox*>().at(0)->setValue(90.0); },
           [&] { QTest::mouseDClick(&lane, Qt::LeftButton, {}, at(0, 13)); });
    ASSERT_EQ(time.tempos(), std::vector{Tempo::ofBeats(12.0, 90.0)}) << "on the second beat";

    const auto drag = [&](QPoint from, QPoint to) {
        QTest::mousePress(&lane, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, to, lane.mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(&lane, &move);
        QTest::mouseRelease(&lane, Qt::LeftButton, {}, to);
    };
    drag(at(0, 12), at(0, 20));
    EXPECT_EQ(time.tempos(), std::vector{Tempo::ofBeats(20.0, 90.0)});
    drag(at(0, 20), at(0, 20));
    EXPECT_EQ(musical.undoStack().count(), 3) << "a click moves nothing";
    answer(
        [](QDialog& dialog) {
            for (auto* box : dialog.findChildren<QSpinBox*>())
                box->setValue(2);
        },
        [&] { QTest::keyClick(&lane, Qt::Key_Return); });
    EXPECT_EQ(time.tempos(), std::vector{Tempo::ofBeats(24.0 + 20.0, 90.0)})
        << "the same place in the second bar";
    QTest::keyClick(&lane, Qt::Key_Down);
    QTest::keyClick(&lane, Qt::Key_Delete);
    EXPECT_TRUE(time.timeSignatures().empty());
    EXPECT_EQ(time.tempos().size(), 1U);
    musical.undoStack().setIndex(0);
    EXPECT_EQ(time, MusicalTime());
    musical.undoStack().setIndex(2);
    EXPECT_EQ(time.tempos(), std::vector{Tempo::ofBeats(12.0, 90.0)});
}

TEST_F(TimeLaneTest, LiesBelowARollWhoseTimeRunsAcross)
{
    setPrefBool("TimeRunsAcross", true);
    scrollView.updateSize(1000);
    resetPref("TimeRunsAcross");
    const MusicalTime& time = musical.time();
    const int row = lane.height() / 8;
    answer([](QDialog& dialog) { dialog.findChildren<QDoubleSpinBox*>().at(0)->setValue(90.0); },
           [&] {
               QTest::mouseDClick(&lane, Qt::LeftButton, {}, {17 * 8, row});
           });
    ASSERT_EQ(time.tempos(), std::vector{Tempo::ofBeats(16.0, 90.0)}) << "the first row";
    QTest::mousePress(&lane, Qt::LeftButton, {}, {16 * 8 + 3, row});
    const QPoint to(24 * 8 + 3, row);
    QMouseEvent move(QEvent::MouseMove, to, lane.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&lane, &move);
    QTest::mouseRelease(&lane, Qt::LeftButton, {}, to);
    EXPECT_EQ(time.tempos(), std::vector{Tempo::ofBeats(24.0, 90.0)});
}

} // namespace velmora
