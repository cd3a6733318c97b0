#include "desktop/shell/Desktop.h"
#include "desktop/widgets/NoteSpinBox.h"

#include <QAction>
#include <QApplication>
#include <QToolButton>
#include <QtTest>
#include <gmock/gmock.h>

namespace velmora {

namespace {

template <class Widget> QList<Widget*> all()
{
    QList<Widget*> found;
    for (const QWidget* window : QApplication::topLevelWidgets())
        found += window->findChildren<Widget*>();
    return found;
}

} // namespace

TEST(Tooltips, SayTheShortcut)
{
    Desktop desktop;
    const auto check = [] {
        int shortcuts = 0;
        for (const QToolButton* button : all<QToolButton>()) {
            const QAction* action = button->defaultAction();
            const QKeySequence shortcut = action == nullptr ? QKeySequence() : action->shortcut();
            if (shortcut.isEmpty())
                continue;
            const QString keys = shortcut.toString(QKeySequence::NativeText);
            EXPECT_TRUE(button->toolTip().contains(keys)) << button->toolTip().toStdString();
            ++shortcuts;
        }
        EXPECT_GE(shortcuts, 5);
    };
    check();
    desktop.commands().setShortcut(*desktop.shell().silence, Qt::CTRL | Qt::Key_F12);
    check();
    desktop.commands().restoreDefaults();
}

TEST(Tooltips, NumbersHaveAUnit)
{
    const Desktop desktop;
    for (const QSpinBox* box : all<QSpinBox>()) {
        const bool countsNothing = qobject_cast<const NoteSpinBox*>(box) != nullptr ||
                                   box->accessibleName().endsWith(" bar");
        EXPECT_TRUE(countsNothing || !box->suffix().isEmpty())
            << box->accessibleName().toStdString() << box->objectName().toStdString();
    }
}

} // namespace velmora
