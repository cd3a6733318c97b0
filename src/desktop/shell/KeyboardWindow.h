#pragma once

#include <QMainWindow>

namespace velmora {

class AppDelegate;
class Commands;
class KeyboardView;
class StatusLine;

/// The main window: the keyboard with the menus, the toolbar and the status line. Closing it quits
/// the program.
class KeyboardWindow : public QMainWindow {
    Q_OBJECT

public:
    KeyboardWindow(AppDelegate& application, Commands& commands);

    KeyboardView& keyboard() { return *keyboard_; }
    StatusLine& status() { return *status_; }

signals:
    /// A key of the computer keyboard was pressed or released, and the window did not handle it.
    void keyForwarded(QKeyEvent* event);

private:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

    Commands& commands_;
    KeyboardView* keyboard_;
    StatusLine* status_;
};

} // namespace velmora
