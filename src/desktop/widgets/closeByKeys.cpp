#include "desktop/widgets/closeByKeys.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

namespace velmora {

namespace {

/// Closes the watched window if Esc is pressed and no widget in it handles the key. A shortcut
/// would take precedence over the open list of a combo box, and close the window instead of the
/// list.
class EscapeFilter : public QObject {
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
    window.installEventFilter(new EscapeFilter(&window));
}

} // namespace velmora
