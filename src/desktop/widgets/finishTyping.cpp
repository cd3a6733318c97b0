#include "desktop/widgets/finishTyping.h"

#include <QApplication>
#include <QWidget>

namespace velmora {

void finishTyping(const QWidget& panel)
{
    QWidget* const field = QApplication::focusWidget();
    if (field != nullptr && panel.isAncestorOf(field))
        field->clearFocus();
}

} // namespace velmora
