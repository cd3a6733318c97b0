#pragma once

#include <QMainWindow>

namespace velmora {

class AppDelegate;
class Commands;
class KeyboardView;
class StatusLine;

/// The program's home: the keyboard, with the menus, the tools and the state of things around it.
class KeyboardWindow : public QMainWindow {
    Q_OBJECT

public:
    KeyboardWindow(AppDelegate& application, Commands& commands);

    KeyboardView& keyboard() { return *keyboard_; }
    StatusLine& status() { return *status_; }

signals:
    /// A key of the computer keyboard that the window itself has no use for.
    void keyEvent(QKeyEvent* event);

private:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

    Commands& commands_;
    KeyboardView* keyboard_;
    StatusLine* status_;
};

} // namespace velmora
