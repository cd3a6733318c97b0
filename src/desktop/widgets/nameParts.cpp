#include "desktop/widgets/nameParts.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QToolBar>

namespace velmora {

void nameParts(const QToolBar& toolBar)
{
    if (auto* button = toolBar.findChild<QWidget*>("qt_toolbar_ext_button"))
        button->setAccessibleName(QCoreApplication::translate("velmora::nameParts", "More"));
}

void nameParts(const QLineEdit& field)
{
    if (auto* action = field.findChild<QAction*>("_q_qlineeditclearaction"))
        action->setText(QCoreApplication::translate("velmora::nameParts", "Clear"));
}

} // namespace velmora
