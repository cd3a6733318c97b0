#include "desktop/widgets/nameExtension.h"

#include <QCoreApplication>
#include <QToolBar>

namespace velmora {

void nameExtension(const QToolBar& toolBar)
{
    if (auto* button = toolBar.findChild<QWidget*>("qt_toolbar_ext_button"))
        button->setAccessibleName(QCoreApplication::translate("velmora::nameExtension", "More"));
}

} // namespace velmora
