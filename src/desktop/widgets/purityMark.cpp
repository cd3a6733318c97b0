#include "desktop/widgets/purityMark.h"

#include <QPainter>

#include <algorithm>

namespace velmora {

QColor purityColor(Purity purity)
{
    switch (purity) {
    case Purity::Pure:
        return {0x2b, 0x91, 0x50};
    case Purity::Tempered:
        return {0xa8, 0x78, 0x18};
    default:
        return {0xd9, 0x42, 0x3a};
    }
}

void paintPurityMark(QPainter& painter, Purity purity, const QColor& ink, const QRectF& place)
{
    constexpr double kLargest = 14.0, kDotRadius = 0.36, kBarHeight = 0.24;
    const double size = std::min({place.width(), place.height(), kLargest});
    const QPointF centre = place.center();
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    const auto bar = [&](double middle) {
        painter.drawRect(QRectF(centre.x() - size / 2,
                                centre.y() + (middle - kBarHeight / 2) * size, size,
                                kBarHeight * size));
    };
    switch (purity) {
    case Purity::Pure:
        painter.drawEllipse(centre, kDotRadius * size, kDotRadius * size);
        break;
    case Purity::Tempered:
        bar(0.0);
        break;
    case Purity::Rough:
        bar(-kBarHeight);
        bar(kBarHeight);
        break;
    case Purity::None:
        break;
    }
}

} // namespace velmora
