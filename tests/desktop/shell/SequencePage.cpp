#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/shell/PiecesTest.h"
#include "desktop/shell/StatusLine.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QSlider>

namespace velmora {

using testing::ElementsAre;
using testing::IsEmpty;

using SequencePageTest = PiecesTest;

TEST_F(SequencePageTest, ArrowsPointTheWayThatTimeRuns)
{
    SequencePage& window = open();
    draw(window);
    window.document().transport().setPosition(0.0);
    auto& roll = *window.findChild<SequenceScrollView*>();
    setPrefBool("ReduceMotion", true);
    QAction& across = action("Time Runs Across");
    across.trigger();
    EXPECT_TRUE(roll.view().rollGeometry().isAcross);
    roll.scrollTo({14 * 50, 0});
    const int keys = roll.location().x();
    QTest::keyClick(&view(window), Qt::Key_Down);
    EXPECT_LT(roll.location().x(), keys);
    EXPECT_EQ(window.document().transport().position(), 0.0);
    QTest::keyClick(&view(window), Qt::Key_Right);
    EXPECT_GT(window.document().transport().position(), 0.0);
    across.trigger();
    EXPECT_FALSE(roll.view().rollGeometry().isAcross);
    resetPref("ReduceMotion");
    resetPref("TimeRunsAcross");
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(window)); });
}

TEST_F(SequencePageTest, ControlsTheTransportByKeysAndToolbar)
{
    SequencePage& window = open();
    QAction& play = action("Play");
    QAction& record = action("Record");
    SequenceDocument& document = window.document();
    draw(window);
    QTest::keyClick(&view(window), Qt::Key_Space);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Playing) << "the key acts only once";
    EXPECT_EQ(play.iconText(), "Stop");
    EXPECT_FALSE(record.isEnabled());
    desktop.workspace().instrumentPanel().findChild<QComboBox*>()->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_EQ(play.iconText(), "Play") << "a menu that was clicked does not take the key";
    play.trigger();
    QTest::keyClick(&window, Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(play.iconText(), "Play");
    record.trigger();
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Recording);
    EXPECT_EQ(record.iconText(), "Stop");
    EXPECT_FALSE(play.isEnabled());
    QTest::keyClick(&view(window), Qt::Key_Return);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Stopped);
    EXPECT_TRUE(play.isEnabled());

    auto& tempo = *desktop.workspace().findChild<TransportBar*>()->findChild<QDoubleSpinBox*>();
    tempo.setFocus();
    tempo.selectAll();
    QTest::keyClicks(&tempo, "90");
    QTest::keyClick(&tempo, Qt::Key_Return);
    EXPECT_NEAR(document.time().tempoAt(0.0), 90.0, 1e-4);
    EXPECT_EQ(document.transport().mode(), Transport::Mode::Stopped) << "the field keeps its keys";
    EXPECT_EQ(QApplication::focusWidget(), &view(window)) << "the roll has the focus again";
    tempo.setFocus();
    QTest::keyClick(&tempo, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &view(window)) << "the focus moves to the next field";
    action("Snap to Grid").trigger();
    action("Loop").trigger();
    action("5").trigger();
    EXPECT_TRUE(document.recorder().snapToGrid() && document.transport().loops());
    EXPECT_EQ(document.recorder().channel(), 4);
    tempo.setFocus();
    tempo.selectAll();
    QTest::keyClicks(&tempo, "77"); // which the field reports when it loses the focus
    answering({"Discard"}, [&] { EXPECT_TRUE(closes(window)); });
}

TEST_F(SequencePageTest, StopsWhenAnotherPieceTakesItsSounds)
{
    SequencePage& first = open();
    draw(first);
    SequencePage& second = open();
    draw(second);
    const auto modeOf = [](SequencePage& page) { return page.document().transport().mode(); };
    first.document().transport().play();
    second.document().transport().play();
    EXPECT_EQ(modeOf(first), Transport::Mode::Playing) << "both sound like the instrument";
    second.document().transport().play();
    EXPECT_EQ(modeOf(first), Transport::Mode::Playing);
    Voices voices = second.document().voices();
    voices[0].sound.preset = {.number = 40};
    QSignalSpy message(&desktop.pages(), &SequencePages::message);
    second.document().mixVoices(voices);
    EXPECT_EQ(modeOf(first), Transport::Mode::Stopped);
    EXPECT_EQ(message.size(), 1);
    first.document().transport().play();
    second.document().transport().play();
    EXPECT_EQ(modeOf(first), Transport::Mode::Stopped);
    EXPECT_EQ(modeOf(second), Transport::Mode::Playing);
    for (SequencePage* page : {&first, &second})
        answering({"Discard"}, [&] { EXPECT_TRUE(closes(*page)); });
}

TEST_F(SequencePageTest, EditsFromMenusAndAcrossWindows)
{
    SequencePage& other = open();
    SequencePage& window = open();
    draw(window);
    draw(window, {300, 100});
    action("Select All").trigger();
    EXPECT_THAT(statusTexts(window), ElementsAre("2 notes selected", "2 notes in all"));
    action("Cut").trigger();
    EXPECT_THAT(statusTexts(window), ElementsAre("0 notes in all"));
    EXPECT_NO_THROW(action("Undo Cut 2 Notes"));
    desktop.pages().select(other);
    action("Paste").trigger();
    EXPECT_EQ(other.document().sequence().notes().size(), 2);
    desktop.pages().select(window);
    QTest::mousePress(&view(window), Qt::LeftButton, {}, {200, 200});
    QTest::keyClick(&view(window), Qt::Key_Z, Qt::ControlModifier);
    QTest::mouseRelease(&view(window), Qt::LeftButton, {}, {200, 200});
    EXPECT_THAT(window.document().sequence().notes(), IsEmpty()) << "no undo during a drag";
    QTest::keyClick(&view(window), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.document().sequence().notes().size(), 2);
    answering({"Discard", "Discard"}, [&] { EXPECT_TRUE(desktop.pages().closeAll()); });
}

TEST_F(SequencePageTest, TheKeyboardShowsTheSequenceThatWasActiveLast)
{
    const auto showsKeysOf = [&](SequencePage& window) {
        return QTest::qWaitFor(
            [&] { return keyboard.document() == &window.document().practice(); });
    };
    SequencePage& first = open();
    EXPECT_TRUE(showsKeysOf(first));
    SequencePage& second = open();
    EXPECT_TRUE(showsKeysOf(second));
    desktop.pages().setOwnWindow(first, true);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&first));
    EXPECT_TRUE(showsKeysOf(first));
    desktop.workspace().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.workspace()));
    EXPECT_TRUE(showsKeysOf(second));
    desktop.pages().setOwnWindow(first, false);
    EXPECT_TRUE(showsKeysOf(first));
    const QVariant place = preference("windows/sequence");
    desktop.pages().select(second);
    EXPECT_EQ(preference("windows/sequence"), place) << "a tab has no place on the screen";
    EXPECT_TRUE(closes(second));
    EXPECT_EQ(keyboard.document(), &first.document().practice());
    EXPECT_TRUE(closes(first));
    EXPECT_EQ(keyboard.document(), nullptr);
}

TEST_F(SequencePageTest, ShowsWhichKeysPracticeWaitsFor)
{
    SequencePage& window = open("wolf-fantasia.mid");
    EXPECT_THAT(statusTexts(window), ElementsAre("Waiting for C3 G3", "156 notes in all"));
    desktop.application().keyOn(48, 1.0F);
    desktop.application().keyOn(50, 1.0F);
    window.document().practice().midiInput();
    EXPECT_EQ(statusTexts(window).front(), "Waiting for G3; not D3");
    desktop.application().silenceAll();
    EXPECT_TRUE(closes(window));
}

TEST_F(SequencePageTest, FollowsThePositionUnlessTheUserScrollsAway)
{
    setPrefBool("ReduceMotion", true);
    SequencePage& window = open("wolf-fantasia.mid");
    auto& scrollView = *window.findChild<SequenceScrollView*>();
    const auto middle = [&] {
        return (scrollView.location().x() + window.width() / 2.0) / getPrefInt("KeyWidth");
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::abs(middle() - 57) < 2.0; })) << middle();
    const auto bottomAfter = [&](double step) {
        window.document().transport().scrollTo(step);
        return scrollView.location().y() / getPrefInt("KeyHeight");
    };
    EXPECT_EQ(bottomAfter(100), 92);
    window.document().transport().play();
    QApplication::processEvents();
    EXPECT_EQ(bottomAfter(200), 192);
    QWheelEvent wheel({100, 100}, scrollView.mapToGlobal(QPoint(100, 100)), {}, {0, -120},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&scrollView, &wheel);
    EXPECT_EQ(bottomAfter(300), 184) << "scrolled away";
    window.document().transport().play();
    window.document().transport().play();
    QApplication::processEvents();
    EXPECT_EQ(bottomAfter(300), 292) << "playing has started again";
    resetPref("ReduceMotion");
    EXPECT_TRUE(closes(window));
}

} // namespace velmora
