#include "desktop/shell/ShortcutsPane.h"

#include "app/AppDelegate.h"
#include "desktop/shell/CommandPalette.h"
#include "desktop/shell/tuningChoices.h"
#include "desktop/widgets/Commands.h"
#include "desktop/widgets/SearchField.h"

#include <QAction>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

namespace {

class ShortcutsTest : public testing::Test {
protected:
    ~ShortcutsTest() override { commands.restoreDefaults(); }

    Commands commands;
    QAction* play = commands.add("test.play", "Piece", {"&Play", {}}, {Qt::Key_Space});
    QAction* loop = commands.add("test.loop", "Piece", {"&Loop", {}}, {Qt::CTRL | Qt::Key_L});
    QAction* zoom = commands.add("test.zoom", "View", {"&Zoom In", {}});
};

} // namespace

TEST_F(ShortcutsTest, StandBesideNamesThatCanBeRead)
{
    commands.add("test.many", "View", {"&Zoom to the Selection", {}},
                 {Qt::Key_F2, Qt::CTRL | Qt::SHIFT | Qt::Key_F3, Qt::CTRL | Qt::ALT | Qt::Key_F4});
    ShortcutsPane pane(commands);
    pane.resize(250, 300);
    pane.show();
    const auto& list = *pane.findChild<QTreeWidget*>();
    EXPECT_GT(list.columnWidth(0), list.fontMetrics().horizontalAdvance("Zoom to the Selection"));
}

TEST_F(ShortcutsTest, AreEditedWithoutConflicts)
{
    ShortcutsPane pane(commands);
    pane.show();
    auto& list = *pane.findChild<QTreeWidget*>();
    auto& editor = *pane.findChild<QKeySequenceEdit*>();
    const auto shown = [&](int group, int command) {
        return list.topLevelItem(group)->child(command)->text(1).toStdString();
    };
    const auto button = [&](const QString& text) {
        for (auto* each : pane.findChildren<QPushButton*>())
            if (each->text().remove('&') == text)
                return each;
        throw std::runtime_error(text.toStdString());
    };
    const auto problem = [&] { return pane.findChildren<QLabel*>().back()->text().toStdString(); };
    EXPECT_EQ(shown(0, 1), "Ctrl+L");
    EXPECT_FALSE(editor.isEnabled()) << "no command is selected";

    list.setCurrentItem(list.topLevelItem(1)->child(0));
    QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(zoom->shortcut(), QKeySequence("Ctrl+Alt+Z"));
    EXPECT_EQ(shown(1, 0), "Ctrl+Alt+Z");
    QTest::keyClick(&editor, Qt::Key_Z);
    EXPECT_THAT(problem(), HasSubstr("plays a note"));
    list.setCurrentItem(list.topLevelItem(0)->child(0));
    QTest::keyClick(&editor, Qt::Key_L, Qt::ControlModifier);
    EXPECT_THAT(problem(), HasSubstr("Loop"));
    EXPECT_EQ(play->shortcut(), QKeySequence(Qt::Key_Space)) << "nothing has changed yet";
    button("Use It Here")->click();
    EXPECT_EQ(play->shortcut(), QKeySequence("Ctrl+L"));
    EXPECT_TRUE(loop->shortcuts().isEmpty());
    EXPECT_EQ(problem(), "");
    button("Remove")->click();
    EXPECT_TRUE(play->shortcuts().isEmpty());

    Commands next; // those of the next start
    EXPECT_EQ(next.add("test.zoom", "View", {"", {}})->shortcut(), QKeySequence("Ctrl+Alt+Z"));
    button("Restore Defaults")->click();
    EXPECT_EQ(shown(0, 0), "Space");
    EXPECT_EQ(shown(1, 0), "");
}

TEST_F(ShortcutsTest, PaletteFindsCommandsAndPerformsThem)
{
    QWidget window;
    window.resize(700, 500);
    window.show();
    CommandPalette palette(commands, &window);
    QSignalSpy played(play, &QAction::triggered);
    QSignalSpy looped(loop, &QAction::triggered);
    const auto& list = *palette.findChild<QListWidget*>();
    const auto found = [&] {
        std::vector<std::string> texts;
        for (int row = 0; row < list.count(); ++row)
            if (!list.item(row)->isHidden())
                texts.push_back(list.item(row)->text().toStdString());
        return texts;
    };
    const auto type = [&](const char* text) {
        palette.open();
        QTest::keyClicks(palette.focusWidget(), text);
    };
    play->setEnabled(false);
    type("piece");
    EXPECT_THAT(found(), ElementsAre("Play\nPiece – Space", "Loop\nPiece – Ctrl+L"));
    QTest::keyClick(palette.focusWidget(), Qt::Key_Up);
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(looped.size(), 1) << "the one above is disabled";
    EXPECT_FALSE(palette.isVisible());
    EXPECT_TRUE(played.isEmpty());

    type("+l");
    EXPECT_THAT(found(), ElementsAre("Loop\nPiece – Ctrl+L"));
    QTest::keyClick(palette.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(palette.isVisible());
    type("play");
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(palette.isVisible()) << "a disabled command does nothing";
    EXPECT_TRUE(played.isEmpty());
    EXPECT_EQ(looped.size(), 1);

    AppDelegate application;
    palette.offer([&] { return tuningChoices(application); });
    type("bach kirnberger");
    EXPECT_FALSE(list.isVisible()) << "nothing has both words";
    type("werckmeister iii");
    ASSERT_THAT(found(), SizeIs(1));
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(application.tunings().name(), "Werckmeister III");
    application.tunings().addBuiltins();
    type("pure");
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(application.tunings().name(), "Pure") << "not the first that says \"pure thirds\"";
}

} // namespace velmora
