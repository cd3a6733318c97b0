#include "desktop/shell/Workspace.h"

#include "desktop/instruments/InstrumentPanel.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/roll/TransportBar.h"
#include "desktop/shell/Desktop.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/StageView.h"
#include "desktop/shell/StatusLine.h"
#include "desktop/widgets/windowPlace.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QtTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace velmora {

namespace {

class WorkspaceTest : public testing::Test {
protected:
    WorkspaceTest()
    {
        workspace.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&workspace));
    }

    QDockWidget& panel(const char* name) { return *workspace.findChild<QDockWidget*>(name); }

    Desktop desktop;
    Workspace& workspace = desktop.workspace();
    ShellActions& shell = desktop.shell();
};

} // namespace

TEST_F(WorkspaceTest, EachLayoutRemembersItsPanels)
{
    EXPECT_TRUE(panel("instrument").isVisible() && panel("tuning").isVisible());
    panel("instrument").close();
    EXPECT_FALSE(shell.instrument->isChecked());
    shell.editLayout->trigger();
    EXPECT_FALSE(panel("tuning").isVisible());
    EXPECT_TRUE(panel("keyboard").isVisible());
    shell.tuning->trigger();
    EXPECT_TRUE(panel("tuning").isVisible());
    shell.playLayout->trigger();
    EXPECT_FALSE(panel("instrument").isVisible());
    shell.editLayout->trigger();
    EXPECT_TRUE(panel("tuning").isVisible());
    shell.resetLayout->trigger();
    EXPECT_FALSE(panel("tuning").isVisible());
    shell.playLayout->trigger();
    shell.resetLayout->trigger();
    EXPECT_TRUE(panel("instrument").isVisible() && shell.instrument->isChecked());
    panel("keyboard").close();
    EXPECT_TRUE(workspace.isVisible()) << "closing the keyboard does not quit";
    for (const std::string damaged : {"", "\x03", "\xFF"})
        workspace.restoreArrangement(damaged);
    EXPECT_EQ(workspace.layout(), Workspace::Layout::Play);
}

TEST_F(WorkspaceTest, TheConsoleLeavesThePieceItsRoomInALowWindow)
{
    for (const auto& [height, area] :
         {std::pair{760, Qt::LeftDockWidgetArea}, {1100, Qt::TopDockWidgetArea}}) {
        workspace.resize(1240, height);
        shell.resetLayout->trigger();
        EXPECT_EQ(workspace.dockWidgetArea(&panel("console")), area) << height;
    }
}

TEST_F(WorkspaceTest, OtherWindowsFirstOpenInItsMiddle)
{
    workspace.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&workspace));
    QWidget other;
    other.resize(300, 200);
    rememberPlace(other, "other");
    other.show();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QPoint distance = other.geometry().center() - workspace.geometry().center();
        return distance.manhattanLength() < 5;
    }));
    other.move(10, 20);
    other.hide();
    QWidget again;
    rememberPlace(again, "other");
    again.show();
    EXPECT_EQ(again.pos(), QPoint(10, 20));
}

TEST_F(WorkspaceTest, APanelBehindAnotherComesToTheFront)
{
    const auto isInFront = [&](const char* name) { return !panel(name).visibleRegion().isEmpty(); };
    shell.tuningStudio->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return isInFront("tuningStudio") && !isInFront("tuning"); }));
    shell.tuning->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return isInFront("tuning"); }));
    EXPECT_TRUE(shell.tuning->isChecked());
    shell.tuning->trigger();
    EXPECT_FALSE(panel("tuning").isVisible()) << "in front it is closed";
    EXPECT_FALSE(shell.tuning->isChecked());
}

TEST_F(WorkspaceTest, PanelsShareASideWhereLargeTypeLeavesLittleRoom)
{
    const auto roomForThePiece = [&] {
        shell.resetLayout->trigger();
        QApplication::processEvents();
        return workspace.centralWidget()->width();
    };
    shell.playLayout->trigger();
    QFont large = workspace.font();
    large.setPointSizeF(17.0);
    workspace.setFont(large);
    workspace.resize(1152, 648);
    EXPECT_GT(roomForThePiece(), workspace.width() / 2);
    const auto isInFront = [&](const char* name) {
        return QTest::qWaitFor([&] { return !panel(name).visibleRegion().isEmpty(); });
    };
    EXPECT_TRUE(isInFront("instrument"));
    for (int time = 0; time < 2; ++time) {
        for (auto* tabs : workspace.findChildren<QTabBar*>(Qt::FindDirectChildrenOnly))
            tabs->setCurrentIndex(0);
        EXPECT_TRUE(isInFront("instrument"));
        shell.tuning->trigger();
        EXPECT_TRUE(isInFront("tuning")) << "a panel behind another comes forward";
        EXPECT_TRUE(shell.tuning->isChecked());
    }
    shell.tuning->trigger();
    EXPECT_FALSE(panel("tuning").isVisible());

    workspace.resize(1900, 900);
    roomForThePiece();
    EXPECT_TRUE(workspace.tabifiedDockWidgets(&panel("instrument")).isEmpty());
}

TEST_F(WorkspaceTest, TheStageFillsTheScreenAndShowsNoDialogs)
{
    QTest::keyClick(&workspace, Qt::Key_F11);
    EXPECT_TRUE(workspace.isFullScreen());
    EXPECT_FALSE(workspace.menuBar()->isVisible());
    const auto& stage = *workspace.findChild<StageView*>();
    const auto isHint = [](const QLabel* line) { return line->text() == "F11 leaves the stage"; };
    EXPECT_TRUE(std::ranges::any_of(stage.findChildren<QLabel*>(), isHint));
    bool hadDialog = false;
    QTimer::singleShot(0, [&] {
        if (QWidget* dialog = QApplication::activeModalWidget()) {
            hadDialog = true;
            dialog->close();
        }
    });
    desktop.open({"/no/such.scl"});
    QApplication::processEvents();
    EXPECT_FALSE(hadDialog);
    EXPECT_TRUE(workspace.status().findChild<QAbstractButton*>()->toolTip().contains("such.scl"));
    QTest::keyClick(&workspace, Qt::Key_F11);
    EXPECT_FALSE(workspace.isFullScreen());
    EXPECT_TRUE(workspace.menuBar()->isVisible());
}

TEST_F(WorkspaceTest, TheStageFitsOnTheScreenInLargeType)
{
    const QFont normal = QApplication::font();
    const int tuningWidth = panel("tuning").width();
    shell.stageLayout->trigger();
    EXPECT_TRUE(workspace.tabifiedDockWidgets(&panel("instrument")).isEmpty());
    shell.stageLayout->trigger();
    QApplication::processEvents();
    EXPECT_EQ(panel("tuning").width(), tuningWidth) << "as before";

    QFont large = normal;
    large.setPointSize(60);
    QApplication::setFont(large);
    shell.stageLayout->trigger();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return workspace.minimumSizeHint().width() <= workspace.screen()->size().width(); }));
    EXPECT_TRUE(workspace.tabifiedDockWidgets(&panel("instrument")).contains(&panel("tuning")));
    shell.stageLayout->trigger();
    QApplication::setFont(normal);
}

TEST_F(WorkspaceTest, TheStageShowsWholeWords)
{
    QWidget window;
    auto* stage = new StageView(desktop.application(), *shell.stageLayout);
    stage->setParent(&window);
    window.show();
    desktop.application().tunings().addBuiltins();
    desktop.application().tunings().select("Quartercomma Meantone");
    for (const int width : {1200, 300, 150}) {
        stage->resize(width, 1000);
        for (const QLabel* line : stage->findChildren<QLabel*>())
            for (const QString& word : line->text().split(' '))
                EXPECT_LE(line->fontMetrics().horizontalAdvance(word), width) << word.toStdString();
    }
}

TEST_F(WorkspaceTest, KeysReachThePieceWhateverWasClicked)
{
    const Transport& transport = desktop.pages().create().document().transport();
    const auto startsWith = [&](QWidget& place) {
        QTest::keyClick(&place, Qt::Key_Space);
        const bool isPlaying = transport.mode() == Transport::Mode::Playing;
        if (isPlaying)
            desktop.pages().stopPlaying();
        return isPlaying;
    };
    QTest::mouseClick(&workspace.keyboard(), Qt::LeftButton);
    EXPECT_TRUE(startsWith(*QApplication::focusWidget()));
    auto& menu = *workspace.instrumentPanel().findChild<QComboBox*>();
    menu.setFocus(Qt::MouseFocusReason);
    EXPECT_TRUE(startsWith(menu));
    menu.clearFocus();
    menu.setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(startsWith(menu)) << "the space bar opens the menu";
    menu.hidePopup();
    QComboBox& channel = *workspace.findChild<TransportBar*>()->findChild<QComboBox*>();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        const int before = channel.currentIndex();
        channel.setFocus(Qt::MouseFocusReason);
        channel.showPopup();
        QTest::keyClick(channel.view(), Qt::Key_Down);
        QTest::keyClick(channel.view(), key);
        EXPECT_EQ(channel.currentIndex(), before + 1);
        EXPECT_EQ(transport.mode(), Transport::Mode::Stopped);
        channel.hidePopup();
    }
    auto& tempo = *workspace.findChild<QSpinBox*>();
    tempo.setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(startsWith(tempo)) << "a field keeps its keys";
    EXPECT_FALSE(startsWith(*tempo.parentWidget())) << "also those that it ignores";

    const LiveKeys& keys = desktop.application().player().liveKeys();
    QTest::keyPress(&workspace.keyboard(), Qt::Key_A);
    EXPECT_NE(keys.state(60), 0);
    tempo.setFocus();
    QTest::keyRelease(&tempo, Qt::Key_A);
    EXPECT_EQ(keys.state(60), 0) << "released although the focus has moved";
    QTest::keyPress(&workspace.keyboard(), Qt::Key_A);
    desktop.preferencesWindow().show();
    desktop.preferencesWindow().activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.preferencesWindow()));
    EXPECT_EQ(keys.state(60), 0) << "its release goes to another window";
    EXPECT_FALSE(startsWith(desktop.preferencesWindow()));
    QTest::keyClick(&desktop.preferencesWindow(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(desktop.pages().all().size(), 2) << "shortcuts work in every window";
    desktop.preferencesWindow().close();
    for (SequencePage* page : desktop.pages().all())
        page->settle();
}

TEST_F(WorkspaceTest, ALayoutThatHidesTheFocusGivesItToThePiece)
{
    const SequencePage& page = desktop.pages().create();
    panel("instrument").findChild<QLineEdit*>()->setFocus();
    shell.editLayout->trigger();
    EXPECT_TRUE(page.isAncestorOf(QApplication::focusWidget()));
    desktop.pages().closeAll();
}

TEST_F(WorkspaceTest, EverySwitchOfAVoiceIsReachedAndTurnedByTheKeyboard)
{
    SequenceDocument& piece = desktop.pages().create().document();
    for (unsigned channel = 0; channel < 2; ++channel)
        piece.edit()->addNote({.length = 4.0, .velocity = 1.0F, .channel = channel, .key = 60});
    if (!panel("voices").isVisible())
        shell.voices->trigger();
    QApplication::processEvents();
    auto* switches = panel("voices").findChild<QCheckBox*>();
    switches->setFocus(Qt::TabFocusReason);
    std::set<QString> turned;
    for (int stop = 0; stop < 40 && panel("voices").isAncestorOf(QApplication::focusWidget());
         ++stop, QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab)) {
        const auto* button = qobject_cast<QToolButton*>(QApplication::focusWidget());
        if (button == nullptr || button->accessibleName().isEmpty())
            continue;
        // Another window comes and goes.
        QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(QApplication::focusWidget(), &back);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_EQ(piece.transport().mode(), Transport::Mode::Stopped);
        if (button->isChecked())
            turned.insert(button->accessibleName());
    }
    for (const char* name : {"Record and draw on", "Mute", "Solo", "Lock"})
        for (const char* voice : {"Voice 1", "Voice 2"})
            EXPECT_TRUE(turned.contains(QString("%1 %2").arg(name, voice))) << name << voice;
    EXPECT_TRUE(piece.voices()[0].isSolo && piece.voices()[1].isLocked);
    EXPECT_EQ(piece.recorder().channel(), 1);
    desktop.pages().current()->settle();
}

TEST_F(WorkspaceTest, RecordingWithoutAPieceBeginsOne)
{
    QTest::keyClick(&workspace, Qt::Key_Return);
    ASSERT_NE(desktop.pages().current(), nullptr);
    EXPECT_EQ(desktop.pages().current()->document().transport().mode(), Transport::Mode::Recording);
    desktop.pages().current()->settle();
}

TEST_F(WorkspaceTest, ShortcutsCanBeChangedAndRestored)
{
    Commands& commands = desktop.commands();
    const QKeySequence key(Qt::CTRL | Qt::Key_H);
    commands.setShortcut(*shell.newSequence, key);
    EXPECT_EQ(commands.userOf(key, *shell.open), shell.newSequence);
    EXPECT_EQ(commands.userOf(key, *shell.newSequence), nullptr);
    EXPECT_TRUE(shell.newSequence->toolTip().endsWith("(Ctrl+H)"));
    QTest::keyClick(&workspace, Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(workspace.tabs().count(), 1);
    {
        Commands later;
        const ShellActions others(desktop.application(), later);
        EXPECT_EQ(others.newSequence->shortcut(), key) << "remembered";
    }
    commands.restoreDefaults();
    EXPECT_EQ(shell.newSequence->shortcut(), QKeySequence(QKeySequence::New));
    std::set<QKeySequence> used;
    for (const Commands::Command& command : commands.all())
        for (const QKeySequence& shortcut : command.action->shortcuts())
            EXPECT_TRUE(used.insert(shortcut).second) << shortcut.toString().toStdString();
}

} // namespace velmora
