#pragma once

#include <QObject>
#include <QPointer>

class QAction;

namespace velmora {

/// Lets the shortcut of a command work in every dialog, because a modal dialog blocks the shortcuts
/// of all other windows.
class DialogCommands : public QObject {
    Q_OBJECT

public:
    /// Watches the whole program for dialogs that open.
    explicit DialogCommands(QAction& command);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPointer<QAction> command_;
};

} // namespace velmora
