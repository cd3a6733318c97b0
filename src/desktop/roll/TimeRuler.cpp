#include "desktop/roll/TimeRuler.h"

#include "base/Text.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/widgets/scheme.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace velmora {

namespace {

/// A handle can be grabbed this many pixels beside it.
constexpr double kReach = 6.0;

constexpr int kArrow = 12;
constexpr double kBeatTick = 6.0;
constexpr double kFlag = 9.0; // of a marker
constexpr double kIntervalEdge = 3.0;
constexpr double kGap = 4.0;                          // beside a number
constexpr int kLoopOpacity = 130, kPlainOpacity = 60; // of 255

} // namespace

TimeRuler::TimeRuler(const SequenceView& view) : TimeStrip(view, Side::Above)
{
    setAccessibleName(tr("Bars"));
    setToolTip(
        tr("Drag the arrow to move the play position. Drag over the ruler to select the time "
           "that is looped."));
    setMouseTracking(true);
}

void TimeRuler::setDocument(const SequenceDocument* document, SequenceEditor* editor)
{
    if (document_ != nullptr)
        disconnect(&document_->transport(), nullptr, this, nullptr);
    document_ = document;
    editor_ = editor;
    dragged_ = Handle::None;
    if (document_ != nullptr) {
        const Transport& transport = document_->transport();
        connect(&transport, &Transport::moved, this, qOverload<>(&TimeRuler::update));
        connect(&transport, &Transport::frame, this, qOverload<>(&TimeRuler::update));
        connect(&transport, &Transport::optionsChanged, this, qOverload<>(&TimeRuler::update));
    }
    update();
}

int TimeRuler::preferredThickness() const
{
    const int text = isAcross() ? fontMetrics().height() : fontMetrics().horizontalAdvance("0000");
    return text + kArrow;
}

TimeRuler::Handle TimeRuler::handleAt(double y) const
{
    const Transport& transport = document_->transport();
    const Interval& interval = transport.interval();
    const auto isNear = [&](double step) { return std::abs(yOf(step) - y) <= kReach; };
    if (isNear(transport.position()))
        return Handle::Position;
    if (!interval.isEmpty() && isNear(interval.start))
        return Handle::Start;
    return !interval.isEmpty() && isNear(interval.end) ? Handle::End : Handle::None;
}

bool TimeRuler::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || document_ == nullptr)
        return QWidget::event(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    for (const Marker& marker : document_->time().markers()) {
        const double distance = yOf(marker.step) - standing(help.pos()).y();
        if (distance >= 0.0 && distance <= kFlag) {
            QToolTip::showText(help.globalPos(), QString::fromStdString(toUtf8(marker.text)), this);
            return true;
        }
    }
    return QWidget::event(event);
}

void TimeRuler::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (document_ == nullptr)
        return;
    painter.setWorldTransform(turn());
    paintBars(painter);
    paintHandles(painter);
}

void TimeRuler::paintBars(QPainter& painter) const
{
    const RollGeometry geometry = view().rollGeometry();
    painter.setPen(palette().color(QPalette::WindowText));
    const MusicalTime& time = document_->time();
    double textEnd = std::numeric_limits<double>::infinity(); // of the last number, from below
    for (const auto& [step, kind] :
         time.gridLines(geometry.firstStep(), geometry.endStep(),
                        std::min(visibleGrid(geometry.keyHeight), Grid::Beats))) {
        const double y = std::floor(yOf(step)) - 0.5;
        const bool isBar = kind == GridLine::Kind::Bar;
        painter.drawLine(QPointF(isBar ? 0 : thickness() - kBeatTick, y), QPointF(thickness(), y));
        if (isBar && y <= textEnd)
            textEnd = paintNumber(painter, time.barAt(step).number, y);
    }
    for (const Marker& marker : time.markers()) {
        const double y = yOf(marker.step);
        const std::array flag{QPointF(0, y), QPointF(0, y - kFlag), QPointF(kFlag, y - kFlag / 2)};
        painter.setBrush(accentOn({palette().color(QPalette::Window)}, palette()));
        painter.drawPolygon(flag.data(), static_cast<int>(flag.size()));
    }
}

double TimeRuler::paintNumber(QPainter& painter, int number, double y) const
{
    // A marker at the bar has its flag there.
    const auto isAtBar = [&](const Marker& marker) {
        return std::abs(yOf(marker.step) - y) < kFlag;
    };
    const double gap =
        kGap + (std::ranges::any_of(document_->time().markers(), isAtBar) ? kFlag : 0.0);
    const QString text = locale().toString(number);
    const double textWidth = fontMetrics().horizontalAdvance(text);
    const double textHeight = fontMetrics().height();
    if (!isAcross()) {
        painter.drawText(QRectF(gap, y - textHeight - 1, width(), textHeight),
                         Qt::AlignLeft | Qt::AlignBottom, text);
        return y - textHeight;
    }
    painter.setWorldMatrixEnabled(false); // letters stay upright
    painter.drawText(
        QRectF(turn().map(QPointF(0, y)) + QPointF(gap, 0), QSizeF(textWidth + kGap, textHeight)),
        Qt::AlignLeft | Qt::AlignTop, text);
    painter.setWorldMatrixEnabled(true);
    return y - textWidth - gap - kGap;
}

void TimeRuler::paintHandles(QPainter& painter) const
{
    const Transport& transport = document_->transport();
    const QColor color = accentOn({palette().color(QPalette::Window)}, palette());
    if (const Interval& interval = transport.interval(); !interval.isEmpty()) {
        QColor band = color;
        band.setAlpha(transport.loops() ? kLoopOpacity : kPlainOpacity);
        const double top = yOf(interval.end), bottom = yOf(interval.start);
        painter.fillRect(QRectF(0, top, thickness(), bottom - top), band);
        for (const double edge : {top, bottom - kIntervalEdge})
            painter.fillRect(QRectF(0, edge, thickness(), kIntervalEdge), color);
    }
    // At an edge of the view the arrow stays in sight.
    double y = yOf(transport.position());
    if (y > -kReach && y < length() + kReach)
        y = std::clamp(y, kReach, std::max(kReach, length() - kReach));
    const std::array arrow{QPointF(thickness() - kArrow, y - kReach), QPointF(thickness() - 1, y),
                           QPointF(thickness() - kArrow, y + kReach)};
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(color);
    painter.drawPolygon(arrow.data(), static_cast<int>(arrow.size()));
}

void TimeRuler::mousePressEvent(QMouseEvent* event)
{
    if (editor_ == nullptr || event->button() != Qt::LeftButton)
        return;
    const Interval interval = document_->transport().interval();
    const double y = standing(event->position()).y();
    dragged_ = handleAt(y);
    fixed_ = dragged_ == Handle::Start ? interval.end : interval.start;
    if (dragged_ != Handle::None)
        return;
    fixed_ = stepAt(y);
    editor_->movePosition(fixed_);
    editor_->selectInterval(fixed_, fixed_);
    dragged_ = Handle::End;
}

void TimeRuler::mouseMoveEvent(QMouseEvent* event)
{
    if (editor_ == nullptr)
        return;
    const double y = standing(event->position()).y();
    if (dragged_ == Handle::None)
        setCursor(handleAt(y) == Handle::None ? Qt::ArrowCursor
                  : isAcross()                ? Qt::SizeHorCursor
                                              : Qt::SizeVerCursor);
    else if (dragged_ == Handle::Position)
        editor_->movePosition(stepAt(y));
    else
        editor_->selectInterval(fixed_, stepAt(y));
}

void TimeRuler::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        dragged_ = Handle::None;
}

} // namespace velmora
