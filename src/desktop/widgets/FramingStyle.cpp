#include "desktop/widgets/FramingStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace velmora {

namespace {

constexpr int kNearlyBlack = 24; ///< Of 255.
constexpr double kRadius = 2.0;

/// True if the control has no frame that can be seen.
bool needsFrame(const QStyleOption& option)
{
    return qGray(option.palette.color(QPalette::Window).rgb()) < kNearlyBlack;
}

void drawFrame(QPainter& painter, const QStyleOption& option, const QRect& rect, double radius)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasFocus = (option.state & QStyle::State_HasFocus) != 0;
    painter.setPen(option.palette.color(hasFocus ? QPalette::Highlight : QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

} // namespace

void FramingStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    const bool isFramed = isRound || element == PE_IndicatorCheckBox ||
                          element == PE_PanelButtonCommand || element == PE_FrameLineEdit;
    if (isFramed && needsFrame(*option))
        drawFrame(*painter, *option, option->rect, isRound ? option->rect.width() / 2.0 : kRadius);
}

void FramingStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!needsFrame(*option))
        return;
    if (control == CC_ComboBox || control == CC_SpinBox)
        drawFrame(*painter, *option, option->rect, kRadius);
    else if (control == CC_Slider)
        drawFrame(*painter, *option, subControlRect(control, option, SC_SliderHandle, widget),
                  kRadius);
    else if (control == CC_ScrollBar)
        drawFrame(*painter, *option, subControlRect(control, option, SC_ScrollBarSlider, widget),
                  kRadius);
}

} // namespace velmora
