#include "desktop/widgets/HelpButton.h"

#include "desktop/widgets/icons.h"

#include <QCoreApplication>

namespace velmora {

namespace {

constexpr const char* kSectionProperty = "guideSection";

} // namespace

HelpButton::HelpButton(const char* section, QWidget& panel) : QToolButton(&panel), section_(section)
{
    panel.setProperty(kSectionProperty, section_);
    setIcon(velmora::icon("help"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QCoreApplication::translate("HelpButton", "Help"));
    setToolTip(QCoreApplication::translate("HelpButton", "Show what the guide says about this"));
}

QString guideSectionOf(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const QVariant section = widget->property(kSectionProperty);
        if (section.isValid())
            return section.toString();
    }
    return {};
}

} // namespace velmora
