#include "desktop/keyboard/keyMark.h"

#include "sequencer/LiveKeys.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// The size of a mark as fractions of a key's face, and its range in pixels.
constexpr double kMarkWidth = 0.6;
constexpr double kMarkHeight = 0.18;
constexpr double kMinMark = 9.0; ///< Unless the key is narrower.
constexpr double kMaxMark = 14.0;

/// The thickness of a line and the radius of a dot, as fractions of the mark.
constexpr double kMarkLine = 0.2;
constexpr double kDot = 0.38;
constexpr double kSmallDot = 0.16;

} // namespace

void paintKeyMark(QPainter& painter, int state, const QColor& ink, const QRectF& face)
{
    const double size = std::min(
        {face.width() * kMarkWidth, std::max(face.height() * kMarkHeight, kMinMark), kMaxMark});
    const double half = size / 2;
    const QPointF centre(face.center().x(), face.bottom() - std::min(size, face.height() / 4));
    const auto at = [&](double x, double y) { return centre + QPointF(x, y) * half; };
    const auto dot = [&](double radius) {
        painter.setBrush(ink);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(centre, radius * size, radius * size);
    };
    const QPen pen(ink, size * kMarkLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    switch (state) {
    case kHeld:
        dot(kDot);
        break;
    case kWanted:
        painter.drawEllipse(centre, half, half);
        break;
    case kWanted | kHeld:
        painter.drawEllipse(centre, half, half);
        dot(kSmallDot);
        break;
    case kWanted | kPressed: {
        const std::array corners{at(-1, 0), at(-0.25, 0.75), at(1, -0.75)};
        painter.drawPolyline(corners.data(), static_cast<int>(corners.size()));
        break;
    }
    case kPressed:
        painter.drawLine(at(-0.8, -0.8), at(0.8, 0.8));
        painter.drawLine(at(-0.8, 0.8), at(0.8, -0.8));
        break;
    default:
        break;
    }
}

} // namespace velmora
