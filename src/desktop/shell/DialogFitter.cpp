#include "desktop/shell/DialogFitter.h"

#include "desktop/widgets/windowPlace.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

namespace velmora {

DialogFitter::DialogFitter()
{
    qApp->installEventFilter(this);
}

bool DialogFitter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show)
        if (auto* dialog = qobject_cast<QDialog*>(watched))
            dialog->resize(dialog->size().boundedTo(roomFor(*dialog)));
    return QObject::eventFilter(watched, event);
}

} // namespace velmora
