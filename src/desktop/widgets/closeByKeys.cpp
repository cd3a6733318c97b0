#include "desktop/widgets/closeByKeys.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

namespace velmora {

namespace {

/// Closes its parent, a window, by an Esc that the widgets in it have no use for. A shortcut would
/// come before the open list of a combo box, which Esc is to close alone.
class EscapeWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return event->type() == QEvent::KeyPress &&
               static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel) &&
               static_cast<QWidget*>(watched)->close();
    }
};

} // namespace

void closeByKeys(QWidget& window)
{
    new QShortcut(QKeySequence(QKeySequence::Close), &window, [&window] { window.close(); });
    window.installEventFilter(new EscapeWatch(&window));
}

} // namespace velmora
