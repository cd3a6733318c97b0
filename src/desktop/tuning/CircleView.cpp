#include "desktop/tuning/CircleView.h"

#include "desktop/tuning/intervalText.h"
#include "desktop/widgets/noteNames.h"
#include "desktop/widgets/purityMark.h"
#include "desktop/widgets/scheme.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace velmora {

namespace {

constexpr double kCentsPerPixel = 0.25;
constexpr double kNumberScale = 0.9; ///< The size of the numbers relative to the names.
constexpr double kLeastScale = 0.5;  ///< How much smaller they may become in a small view.
constexpr double kLabelMargins = 10.0;

QRectF around(QPointF middle, double width, double height)
{
    return {middle.x() - width / 2, middle.y() - height / 2, width, height};
}

/// How large the mark of a label is.
double markSize(const QFontMetricsF& metrics)
{
    return metrics.height() * 0.5;
}

} // namespace

CircleView::CircleView()
{
    setAccessibleName(tr("Circle of the tuning"));
}

void CircleView::showCircle(const Circle& circle)
{
    if (circle == circle_)
        return;
    if (circle.notes.size() != circle_.notes.size())
        dragged_.reset();
    circle_ = circle;
    setToolTip(
        circle_.isOfFifths
            ? tr("Outside: the fifths. Inside: the major third above each note.\nDrag a note "
                 "outwards to raise it, and inwards to lower it.")
            : tr("The degrees of the scale, each with the nearest pure interval above the first"));
    update();
}

void CircleView::showNumbers(Numbers numbers)
{
    numbers_ = numbers;
    update();
}

QFont CircleView::numberFont() const
{
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * kNumberScale);
    const QFontMetricsF metrics(font);
    const QSizeF room = geometry().labelRoom();
    const double width = metrics.horizontalAdvance("+88.8") + markSize(metrics);
    const double scale =
        std::min((room.width() - kLabelMargins) / width, room.height() / metrics.height());
    if (scale < 1)
        font.setPointSizeF(font.pointSizeF() * std::max(scale, kLeastScale));
    return font;
}

/// Paints the number of an interval on a field of the colour and with the mark of its purity.
void CircleView::paintLabel(QPainter& painter, QPointF middle, const HeardInterval& heard) const
{
    const QFontMetricsF metrics(painter.font());
    const Purity purity = purityOf(heard.distance);
    const QColor color = purityColor(purity), ink = inkOn(color);
    const QString text = numbers_ == Numbers::Cents
                             ? centsText(heard.distance)
                             : QLocale().toString(heard.beatsPerSecond, 'f', 1);
    const double mark = markSize(metrics);
    QRectF field =
        around(middle, metrics.horizontalAdvance(text) + mark + kLabelMargins, metrics.height());
    // In a narrow view there is less room beside the circle.
    field.moveLeft(std::clamp(field.left(), 0.0, std::max(0.0, width() - field.width())));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(field, 4, 4);
    paintPurityMark(painter, purity, ink,
                    QRectF(field.left() + 3, middle.y() - mark / 2, mark, mark));
    painter.setPen(ink);
    painter.drawText(field.adjusted(mark + 4, 0, 0, 0), Qt::AlignCenter, text);
}

void CircleView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const CircleGeometry places = geometry();
    if (circle_.notes.empty())
        return;
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.35F);
    painter.setPen(QPen(line, 1.5));
    painter.setBrush(Qt::NoBrush);
    const double ring = places.distance(places.note(0));
    painter.drawEllipse(rect().toRectF().center(), ring, ring);
    if (circle_.isOfFifths)
        paintThirds(painter);
    painter.setFont(numberFont());
    for (std::size_t i = 0; i < circle_.notes.size(); ++i) {
        const CircleNote& note = circle_.notes[i];
        if (circle_.isOfFifths) {
            paintLabel(painter, places.fifth(i), note.fifth);
            paintLabel(painter, places.third(i), note.third);
        } else if (places.hasLabels()) {
            paintLabel(painter, places.third(i), note.fifth);
        }
    }
    painter.setFont(font());
    for (std::size_t i = 0; i < circle_.notes.size(); ++i)
        paintNote(painter, i);
}

/// Joins the notes of the thirds that sound.
void CircleView::paintThirds(QPainter& painter) const
{
    constexpr std::size_t kFifthsInThird = 4;
    const CircleGeometry places = geometry();
    for (std::size_t i = 0; i < circle_.notes.size(); ++i) {
        const std::size_t upper = (i + kFifthsInThird) % circle_.notes.size();
        if (!circle_.notes[i].sounds || !circle_.notes[upper].sounds)
            continue;
        painter.setPen(QPen(purityColor(purityOf(circle_.notes[i].third.distance)), 3.0));
        painter.drawLine(places.note(i), places.note(upper));
    }
}

void CircleView::paintNote(QPainter& painter, std::size_t position) const
{
    const CircleNote& note = circle_.notes[position];
    const CircleGeometry places = geometry();
    const QColor fill = palette().color(note.sounds ? QPalette::Highlight : QPalette::Button);
    const QColor text =
        palette().color(note.sounds ? QPalette::HighlightedText : QPalette::ButtonText);
    painter.setPen(QPen(palette().color(QPalette::WindowText), note.sounds ? 2.5 : 1.0));
    painter.setBrush(fill);
    const double radius = places.noteRadius();
    const QPointF middle = places.note(position);
    painter.drawEllipse(middle, radius, radius);
    painter.setPen(text);
    const QString name =
        circle_.isOfFifths ? toneText(note.name) : QString::fromStdString(note.name);
    if (QFontMetricsF(painter.font()).horizontalAdvance(name) < 2 * radius + 2)
        painter.drawText(around(middle, 4 * radius, 2 * radius), Qt::AlignCenter, name);
}

void CircleView::mousePressEvent(QMouseEvent* event)
{
    const CircleGeometry places = geometry();
    dragged_ = circle_.isOfFifths && event->button() == Qt::LeftButton
                   ? places.noteAt(event->position())
                   : std::nullopt;
    if (!dragged_ || *dragged_ >= circle_.notes.size())
        return;
    dragStart_ = places.distance(event->position());
    emit dragBegun(circle_.notes[*dragged_].key % 12);
}

void CircleView::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragged_)
        return;
    const double pixels = geometry().distance(event->position()) - dragStart_;
    emit dragged(circle_.notes[*dragged_].key % 12, pixels * kCentsPerPixel);
}

void CircleView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    dragged_.reset();
}

} // namespace velmora
