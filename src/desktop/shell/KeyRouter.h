#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace velmora {

class ComputerKeyboard;
class SequencePages;

/// Sends plain keys, those without Ctrl or Alt, to the keyboard that they play and to the current
/// piece, whatever part of the workspace was clicked last. A widget keeps the keys that it needs:
/// text fields all of them, sliders and lists the arrows, and buttons that the user has reached by
/// Tab the space bar. Secondary windows and dialogs keep all keys.
class KeyRouter : public QObject {
    Q_OBJECT

public:
    /// Watches the whole program. `workspace` is the main window. All must outlive the router.
    KeyRouter(QWidget& workspace, SequencePages& pages, ComputerKeyboard& keyboard);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Returns whether the window belongs to the workspace: the main window, a floating panel, or
    /// the window of a piece.
    bool isOurs(const QWidget& window) const;
    bool keeps(const QWidget& widget, const QKeyEvent& event) const;

    QWidget& workspace_;
    SequencePages& pages_;
    ComputerKeyboard& keyboard_;
    bool isFocusedByKeyboard_ = false; ///< True if the focus came by Tab or a mnemonic.
};

} // namespace velmora
