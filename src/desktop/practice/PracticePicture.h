#pragma once

#include <QPalette>
#include <QSizeF>

class QPainter;

namespace velmora {

struct PracticeSummary;

/// Paints the right, the wrong and the missed keys of every bar, and below them how many keys were
/// how early or late.
void paintPractice(QPainter& painter, QSizeF size, const PracticeSummary& summary,
                   const QPalette& palette);

} // namespace velmora
