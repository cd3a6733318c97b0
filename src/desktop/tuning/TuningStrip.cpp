#include "desktop/tuning/TuningStrip.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/intervalText.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/scheme.h"
#include "sound/keys.h"
#include "tuning/spelling.h"
#include "tuning/usualPlaces.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace velmora {

namespace {

using namespace std::chrono_literals;

// The pitches are read often while they move, and seldom while nobody plays: thirty reads a second
// would be more than half of the work of the idle program.
constexpr auto kMovingInterval = 33ms;
constexpr auto kRestingInterval = 250ms;
constexpr int kReadsUntilRest = 60;
constexpr int kStripHeight = 40;
constexpr double kSmallScale = 0.85; ///< The size of the cents relative to the names.
constexpr int kRowSpacing = 8;
constexpr int kBarRoom = 20; ///< Between the two texts.

/// The deviation at which a bar reaches the edge of the strip.
constexpr double kFullCents = 30.0;

constexpr float kLineOpacity = 0.3F;

double cents(double pitch, double reference)
{
    return 1200.0 * std::log2(pitch / reference);
}

QFont smallFont(const QWidget& widget)
{
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * kSmallScale);
    return font;
}

} // namespace

TuningStrip::TuningStrip(AppDelegate& application, QWidget* parent)
    : QWidget(parent), application_(application)
{
    setFixedHeight(kStripHeight);
    setAccessibleName(tr("Tuning strip"));
    setToolTip(tr("How many cents each note of the tuning lies above or below equal temperament"));
    connect(&timer_, &QTimer::timeout, this, &TuningStrip::read);
    connect(&application_, &AppDelegate::midiInputReceived, this, &TuningStrip::readOften);
}

void TuningStrip::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    read();
    readOften();
    timer_.start();
}

void TuningStrip::hideEvent(QHideEvent* event)
{
    timer_.stop();
    QWidget::hideEvent(event);
}

void TuningStrip::readOften()
{
    readsUntilRest_ = kReadsUntilRest;
    if (timer_.intervalAsDuration() != kMovingInterval)
        timer_.setInterval(kMovingInterval);
}

void TuningStrip::read()
{
    if (readsUntilRest_ > 0 && --readsUntilRest_ == 0)
        timer_.setInterval(kRestingInterval);
    Tones tones;
    const auto look = [&](const Instrument&, const Temperament& temperament) {
        std::array<double, 12> pitches{};
        for (unsigned tone = 0; tone < tones.size(); ++tone) {
            const unsigned key = kMiddleC + tone;
            tones[tone].cents = cents(temperament.getPitch(key), equal.getPitch(key));
            pitches[tone] = 100.0 * tone + tones[tone].cents;
        }
        const std::array<int, 12> usual = usualPlaces(pitches);
        for (unsigned tone = 0; tone < tones.size(); ++tone)
            tones[tone].name = placeName(temperament.place(kMiddleC + tone).value_or(usual[tone]));
    };
    if (!application_.player().with(look))
        return;
    if (tones == tones_)
        return;
    readOften();
    tones_ = tones;
    describe();
    update();
    emit changed();
}

void TuningStrip::describe()
{
    QStringList texts;
    for (const Tone& tone : tones_)
        texts += tr("%1: %2 cents").arg(toneText(tone.name), centsText(tone.cents));
    setAccessibleDescription(texts.join(", "));
}

int TuningStrip::nameWidth() const
{
    return fontMetrics().horizontalAdvance(toneText("F##"));
}

int TuningStrip::centsWidth() const
{
    return QFontMetrics(smallFont(*this)).horizontalAdvance("+88.8");
}

int TuningStrip::columns() const
{
    for (const int columns : {12, 6, 4, 3, 2})
        if (width() >= columns * (nameWidth() + kBarRoom + centsWidth()))
            return columns;
    return 1;
}

QSize TuningStrip::minimumSizeHint() const
{
    return {nameWidth() + kBarRoom + centsWidth(), minimumHeight()};
}

void TuningStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitHeight();
}

void TuningStrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) // the width may stay the same
        fitHeight();
}

void TuningStrip::fitHeight()
{
    const int rows = 12 / columns();
    setFixedHeight(rows == 1 ? kStripHeight : rows * (fontMetrics().height() + kRowSpacing));
}

void TuningStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const int columns = this->columns();
    const QSizeF cell(width() / static_cast<double>(columns), height() * columns / 12.0);
    for (int tone = 0; const Tone& each : tones_) {
        const int row = tone / columns;
        const QPointF corner(tone % columns * cell.width(), row * cell.height());
        paintTone(painter, each, {corner, cell});
        ++tone;
    }
}

void TuningStrip::paintTone(QPainter& painter, const Tone& tone, const QRectF& place) const
{
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(kLineOpacity);
    painter.setPen(line);
    if (place.left() > 0) // between two columns
        painter.drawLine(place.topLeft(), place.bottomLeft());

    // The bar starts in the middle and points up if the note is sharp.
    const QSizeF room(nameWidth() + kBarRoom + centsWidth(), place.height());
    const QPointF left(place.center().x() - room.width() / 2, place.top());
    const QPointF middle(left.x() + nameWidth() + kBarRoom / 2.0, place.center().y());
    const double deviation = std::clamp(tone.cents / kFullCents, -1.0, 1.0);
    const QRectF bar(middle.x() - 3, middle.y(), 6, -deviation * (place.height() / 2.0 - 2));
    painter.fillRect(bar.normalized(), accentOn({palette().color(QPalette::Window)}, palette()));
    painter.drawLine(middle - QPointF(7, 0), middle + QPointF(7, 0));

    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(font());
    painter.drawText(QRectF(left, QSizeF(nameWidth(), place.height())),
                     Qt::AlignRight | Qt::AlignVCenter, toneText(tone.name));
    painter.setFont(smallFont(*this));
    painter.drawText(QRectF(left, room), Qt::AlignRight | Qt::AlignVCenter, centsText(tone.cents));
}

} // namespace velmora
