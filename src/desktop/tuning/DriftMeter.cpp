#include "desktop/tuning/DriftMeter.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kFarthest = 50.0;
constexpr double kDecimals = 10.0; // of a cent are shown
constexpr int kBarHeight = 8;
constexpr int kSpace = 6;
constexpr int kMeterLetters = 24; // that the meter is wide

} // namespace

DriftMeter::DriftMeter(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(tr("How far the pitch has drifted from where it began"));
    setAccessibleName(tr("Drift: %1").arg(text()));
}

void DriftMeter::setCents(double cents)
{
    const double shown = std::round(cents * kDecimals) / kDecimals;
    if (shown == cents_)
        return;
    cents_ = shown == 0.0 ? 0.0 : shown; // without a sign
    setAccessibleName(tr("Drift: %1").arg(text()));
    update();
}

QString DriftMeter::text() const
{
    const QString number = QLocale().toString(std::fabs(cents_), 'f', 1);
    const QString sign = cents_ > 0.0 ? "+" : cents_ < 0.0 ? "−" : "±";
    return tr("%1 cents").arg(sign + number);
}

QSize DriftMeter::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * kMeterLetters, fontMetrics().height()};
}

void DriftMeter::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int number = fontMetrics().horizontalAdvance(tr("%1 cents").arg("+00.0"));
    const int length = std::max(width() - number - kSpace, 0);
    const int top = (height() - kBarHeight) / 2;
    const double middle = length / 2.0;
    const double end = middle * (1.0 + std::clamp(cents_ / kFarthest, -1.0, 1.0));
    painter.fillRect(0, top, length, kBarHeight, palette().color(QPalette::Dark));
    painter.fillRect(QRectF(QPointF(middle, top), QPointF(end, top + kBarHeight)).normalized(),
                     palette().color(QPalette::Highlight));
    painter.fillRect(QRectF(middle - 0.5, top - 2, 1, kBarHeight + 4),
                     palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, text());
}

} // namespace velmora
