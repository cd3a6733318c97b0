#include "desktop/tuning/TuningStrip.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/noteNames.h"
#include "sound/keys.h"
#include "tuning/keyName.h"
#include "tuning/spelling.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kReadsPerSecond = 30;
constexpr int kStripHeight = 40;

/// The deviation at which a bar reaches the edge of the strip.
constexpr double kFullCents = 50.0;

constexpr float kLineOpacity = 0.3F;

double cents(double pitch, double reference)
{
    return 1200.0 * std::log2(pitch / reference);
}

QString centsText(double cents)
{
    const QLocale locale;
    const QString text = locale.toString(cents, 'f', cents == 0 ? 0 : 1);
    return cents > 0 ? locale.positiveSign() + text : text;
}

} // namespace

TuningStrip::TuningStrip(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application)
{
    setFixedHeight(kStripHeight);
    setAccessibleName(tr("Tuning strip"));
    setToolTip(tr("How many cents each note of the tuning lies above or below equal temperament"));
    timer_.setInterval(1000 / kReadsPerSecond);
    connect(&timer_, &QTimer::timeout, this, &TuningStrip::read);
}

void TuningStrip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    read();
    timer_.start();
}

void TuningStrip::hideEvent(QHideEvent* event)
{
    timer_.stop();
    QWidget::hideEvent(event);
}

void TuningStrip::read()
{
    std::array<double, 12> pitches{};
    double base = 0.0;
    const auto look = [&](const Instrument&, const Temperament& temperament) {
        for (unsigned tone = 0; tone < pitches.size(); ++tone)
            pitches[tone] = temperament.getPitch(kMiddleC + tone);
        base = temperament.baseFrequency();
    };
    if (!application_.player().with(look))
        return;
    Tones tones;
    for (unsigned tone = 0; tone < pitches.size(); ++tone) {
        const std::string name = spelling(cents(pitches[tone], base));
        tones[tone] = {name.empty() ? keyName(tone) : name,
                       cents(pitches[tone], equal.getPitch(kMiddleC + tone))};
    }
    if (tones == tones_)
        return;
    tones_ = tones;
    update();
}

void TuningStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(kLineOpacity);
    const double cell = width() / 12.0;
    for (unsigned tone = 0; tone < tones_.size(); ++tone) {
        const QRectF place(tone * cell, 0, cell, height());
        const double middle = place.center().y();
        painter.setPen(line);
        painter.drawLine(place.topRight(), place.bottomRight());

        // The bar starts in the middle and points up if the note is sharp.
        const double deviation = std::clamp(tones_[tone].cents / kFullCents, -1.0, 1.0);
        const QRectF bar(place.left() + cell / 2 - 3, middle, 6, -deviation * (height() / 2.0 - 2));
        painter.fillRect(bar.normalized(), palette().color(QPalette::Highlight));
        painter.drawLine(QPointF(bar.left() - 4, middle), QPointF(bar.right() + 4, middle));

        painter.setPen(palette().color(QPalette::WindowText));
        painter.setFont(font());
        painter.drawText(QRectF(place.left(), 0, cell / 2 - 8, height()),
                         Qt::AlignRight | Qt::AlignVCenter, toneText(tones_[tone].name));
        painter.setFont(small);
        const double shown = std::round(tones_[tone].cents * 10) / 10;
        painter.drawText(QRectF(place.left() + cell / 2 + 8, 0, cell / 2 - 8, height()),
                         Qt::AlignLeft | Qt::AlignVCenter, centsText(shown));
    }
}

} // namespace velmora
