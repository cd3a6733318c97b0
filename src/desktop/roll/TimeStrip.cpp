#include "desktop/roll/TimeStrip.h"

#include "desktop/roll/SequenceView.h"

#include <algorithm>

namespace velmora {

TimeStrip::TimeStrip(const SequenceView& view, Side side) : view_(view), side_(side)
{
    connect(&view, &SequenceView::turned, this, &TimeStrip::fit);
    fit();
}

void TimeStrip::fit()
{
    if (isAcross())
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    else
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    updateGeometry();
}

bool TimeStrip::isAcross() const
{
    return view_.rollGeometry().isAcross;
}

QSize TimeStrip::sizeHint() const
{
    return isAcross() ? QSize(0, preferredThickness()) : QSize(preferredThickness(), 0);
}

QTransform TimeStrip::turn() const
{
    if (!isAcross())
        return {};
    const double length = width();
    return side_ == Side::Above ? QTransform(0, 1, -1, 0, length, 0)
                                : QTransform(0, -1, -1, 0, length, height());
}

QPointF TimeStrip::standing(QPointF point) const
{
    if (!isAcross())
        return point;
    return {side_ == Side::Above ? point.y() : height() - 1 - point.y(), width() - 1 - point.x()};
}

double TimeStrip::yOf(double step) const
{
    return length() - view_.rollGeometry().yOf(step);
}

double TimeStrip::stepAt(double y) const
{
    RollGeometry standing = view_.rollGeometry();
    standing.isAcross = false;
    return std::max(0.0, standing.pointAt(0, y).step);
}

} // namespace velmora
