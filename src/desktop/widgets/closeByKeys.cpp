#include "desktop/widgets/closeByKeys.h"

#include <QKeyEvent>
#include <QWidget>

namespace velmora {

namespace {

/// Closes the watched window if Esc or the standard shortcut is pressed and no widget in it handles
/// the key. A shortcut for Esc would take precedence over the open list of a combo box, and one for
/// closing would be ambiguous, because it also closes the current piece.
class ClosingFilter : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->matches(QKeySequence::Close)) {
            event->accept(); // so that it comes as a key
            return true;
        }
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto& key = *static_cast<QKeyEvent*>(event);
        return (key.matches(QKeySequence::Cancel) || key.matches(QKeySequence::Close)) &&
               static_cast<QWidget*>(watched)->close();
    }
};

} // namespace

void closeByKeys(QWidget& window)
{
    window.installEventFilter(new ClosingFilter(&window));
}

} // namespace velmora
