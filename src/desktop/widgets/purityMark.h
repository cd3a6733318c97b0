#pragma once

#include "tuning/intervals.h"

#include <QColor>
#include <QRectF>

class QPainter;

namespace velmora {

/// The colour of a purity other than `None`. It differs from white and from black keys, and from
/// light and dark windows, by 3 : 1.
QColor purityColor(Purity purity);

/// Paints the mark of a purity in the middle of a rectangle, so that it can be told without its
/// colour: a dot for a pure interval, a bar for a tempered one and two bars for a rough one.
void paintPurityMark(QPainter& painter, Purity purity, const QColor& ink, const QRectF& place);

} // namespace velmora
