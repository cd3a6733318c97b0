#include "desktop/shell/KeyRouter.h"

#include "desktop/console/Drawknob.h"
#include "desktop/keyboard/ComputerKeyboard.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/shell/SequencePage.h"
#include "desktop/shell/SequencePages.h"
#include "preferences/Preferences.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <QWindow>

namespace velmora {

namespace {

template <class... Types> bool isAny(const QWidget& widget)
{
    return (... || (qobject_cast<const Types*>(&widget) != nullptr));
}

bool isText(const QWidget& widget)
{
    const auto* combo = qobject_cast<const QComboBox*>(&widget);
    return isAny<QLineEdit, QTextEdit, QAbstractSpinBox, QKeySequenceEdit>(widget) ||
           (combo != nullptr && combo->isEditable());
}

bool isNeverRouted(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Menu ||
           (key >= Qt::Key_F1 && key <= Qt::Key_F35);
}

bool isArrow(int key)
{
    return key >= Qt::Key_Home && key <= Qt::Key_PageDown;
}

bool isConfirming(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Returns whether the key is an arrow that moves the position of a piece.
bool isAlongTime(int key)
{
    return getPrefBool("TimeRunsAcross") ? key == Qt::Key_Left || key == Qt::Key_Right
                                         : key == Qt::Key_Up || key == Qt::Key_Down;
}

/// Returns whether the key belongs to a command by default. If the user has given the command
/// another shortcut, the key does nothing.
bool isOfCommand(int key)
{
    return isConfirming(key) || key == Qt::Key_Delete || key == Qt::Key_Backspace ||
           key == Qt::Key_Escape || isAlongTime(key);
}

} // namespace

KeyRouter::KeyRouter(QWidget& workspace, SequencePages& pages, ComputerKeyboard& keyboard)
    : workspace_(workspace), pages_(pages), keyboard_(keyboard)
{
    qApp->installEventFilter(this);
    // The release of a held key may now go to another program or to a dialog.
    connect(qApp, &QApplication::focusWindowChanged, this, [this] {
        const QWidget* active = QApplication::activeWindow();
        if (active == nullptr || !isOurs(*active))
            keyboard_.releaseKeys();
    });
}

bool KeyRouter::isOurs(const QWidget& window) const
{
    return &window == &workspace_ || isAny<QDockWidget, SequencePage>(window);
}

bool KeyRouter::keeps(const QWidget& widget, const QKeyEvent& event) const
{
    const int key = event.key();
    if (isText(widget))
        return true;
    if (isArrow(key))
        return (isAny<QAbstractSlider, QAbstractItemView, QComboBox, QTabBar>(widget) &&
                !isAny<QScrollBar>(widget)) ||
               (isFocusedByKeyboard_ && isAny<QCheckBox, Drawknob>(widget)); // moves between stops
    return isConfirming(key) && isFocusedByKeyboard_ &&
           isAny<QAbstractButton, QAbstractItemView, QComboBox>(widget);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        // A window or a menu that closes returns the focus to where it was.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason)
            isFocusedByKeyboard_ = reason == Qt::TabFocusReason ||
                                   reason == Qt::BacktabFocusReason ||
                                   reason == Qt::ShortcutFocusReason;
        return false;
    }
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if ((!isKey && event->type() != QEvent::ShortcutOverride) || widget == nullptr)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    // A letter is released even if the focus or Ctrl has changed since it was pressed.
    if (event->type() == QEvent::KeyRelease && keyboard_.keyUp(key))
        return true;
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier) ||
        isNeverRouted(key.key()))
        return false;
    // A key that the focused widget has kept but ignored goes on to its parents.
    const QWidget* focus = QApplication::focusWidget();
    const QWidget& keeper = focus != nullptr && widget->isAncestorOf(focus) ? *focus : *widget;
    const bool isKept = QApplication::activePopupWidget() != nullptr ||
                        QApplication::activeModalWidget() != nullptr ||
                        !isOurs(*widget->window()) || keeps(keeper, key);
    if (event->type() == QEvent::ShortcutOverride) {
        if (isKept)
            event->accept(); // the widget gets the key, and no command does
        // The open list of a combo box already chooses when it is asked.
        return isKept && QApplication::activePopupWidget() == nullptr;
    }
    if (!isKept && event->type() == QEvent::KeyPress && keyboard_.keyDown(key))
        return true;
    if (isKept || isAny<SequenceView>(*widget))
        return !isKept && isOfCommand(key.key());
    if (pages_.current() != nullptr && !isOfCommand(key.key()))
        pages_.current()->handleKey(key);
    return true;
}

} // namespace velmora
