#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace velmora {

/// Paints the mark of a key's state near the lower end of its face, so that the state can be told
/// without its colour: a dot for a held key, a ring for a wanted one (with a dot if it must be
/// struck again), a check for a right one and a cross for a wrong one. Other states have no mark.
void paintKeyMark(QPainter& painter, int state, const QColor& ink, const QRectF& face);

} // namespace velmora
