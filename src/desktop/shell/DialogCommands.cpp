#include "desktop/shell/DialogCommands.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEvent>

namespace velmora {

DialogCommands::DialogCommands(QAction& command) : command_(&command)
{
    qApp->installEventFilter(this);
}

bool DialogCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && command_ != nullptr)
        if (auto* dialog = qobject_cast<QDialog*>(watched))
            dialog->addAction(command_);
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
