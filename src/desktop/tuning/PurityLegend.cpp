#include "desktop/tuning/PurityLegend.h"

#include "desktop/tuning/intervalText.h"
#include "desktop/widgets/purityMark.h"
#include "desktop/widgets/scheme.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>

namespace velmora {

namespace {

constexpr std::array kExplained = {Purity::Pure, Purity::Tempered, Purity::Rough};
constexpr int kLegendGap = 6;

} // namespace

PurityLegend::PurityLegend()
{
    setAccessibleName(tr("Legend"));
    setAccessibleDescription(texts().join(", "));
}

QStringList PurityLegend::texts()
{
    const QLocale locale;
    const auto number = [&](double cents) { return locale.toString(cents, 'f', 0); };
    return {tr("%1: up to %2 cents").arg(purityText(Purity::Pure), number(kPureWithin)),
            tr("%1: up to %2 cents").arg(purityText(Purity::Tempered), number(kTemperedWithin)),
            purityText(Purity::Rough)};
}

QSize PurityLegend::minimumSizeHint() const
{
    int width = 0;
    for (const QString& text : texts())
        width = std::max(width, fontMetrics().horizontalAdvance(text));
    const int height = fontMetrics().height() + 2;
    return {width + height + kLegendGap, 3 * height};
}

void PurityLegend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int height = fontMetrics().height() + 2;
    const QStringList lines = texts();
    for (std::size_t i = 0; i < kExplained.size(); ++i) {
        const QRectF swatch(0, static_cast<int>(i) * height + 1, height, height - 2);
        const QColor color = purityColor(kExplained[i]);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(swatch, 3, 3);
        paintPurityMark(painter, kExplained[i], inkOn(color), swatch.adjusted(4, 4, -4, -4));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(
            QRectF(swatch.right() + kLegendGap, swatch.top(), width(), swatch.height()),
            Qt::AlignLeft | Qt::AlignVCenter, lines[static_cast<int>(i)]);
    }
}

} // namespace velmora
