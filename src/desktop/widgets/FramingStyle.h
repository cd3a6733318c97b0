#pragma once

#include <QProxyStyle>

namespace velmora {

/// Frames the controls on windows that are black or nearly so. Qt's own style frames them in a
/// darker shade of the window, so that there an unchecked box, for one, could not be seen.
class FramingStyle : public QProxyStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace velmora
