#include "desktop/roll/ControllerLane.h"

#include "desktop/widgets/scheme.h"
#include "sequencer/SequenceDocument.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// How near to an event, in pixels, a press grabs it.
constexpr double kGrabReach = 6.0;

/// The lane shows values from 0 at this distance from its left edge to the greatest at its right
/// edge.
constexpr double kValueMargin = 5.0;

constexpr double kDot = 3.0;

} // namespace

ControllerLane::ControllerLane(const SequenceView& view, int number, const QString& title)
    : Lane(view, title,
           tr("Click to draw how %1 moves, and drag what is there. A click with the right button "
              "deletes it. What is shown belongs to the chosen channel.")
               .arg(title)),
      number_(number)
{
}

void ControllerLane::setEditor(SequenceEditor* editor)
{
    grabbed_.reset();
    dragged_.reset();
    Lane::setEditor(editor);
}

bool ControllerLane::isShown(const ControllerEvent& event) const
{
    return event.number == number_ && event.channel == document().recorder().channel();
}

double ControllerLane::xOf(int value) const
{
    return kValueMargin + value * (thickness() - 2 * kValueMargin) / largestValue(number_);
}

ControllerEvent ControllerLane::eventAt(QPointF point) const
{
    const int largest = largestValue(number_);
    const double part = (point.x() - kValueMargin) / (thickness() - 2 * kValueMargin);
    const auto value = static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * largest));
    return {stepAt(point.y()), document().recorder().channel(), static_cast<std::uint8_t>(number_),
            static_cast<std::uint16_t>(isSwitch(number_) ? (2 * value > largest ? largest : 0)
                                                         : value)};
}

Controllers ControllerLane::edited() const
{
    Controllers controllers = document().controllers();
    if (grabbed_)
        if (const auto old = std::ranges::find(controllers, *grabbed_); old != controllers.end())
            controllers.erase(old);
    if (dragged_)
        controllers.insert(
            std::ranges::upper_bound(controllers, dragged_->step, {}, &ControllerEvent::step),
            *dragged_);
    return controllers;
}

void ControllerLane::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintGround(painter);
    if (editor() == nullptr)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = accentOn({palette().color(QPalette::Base)}, palette());
    double x = xOf(restingValue(number_)), y = length();
    const auto line = [&](double to) {
        painter.setPen(QPen(color, 1.5));
        painter.drawLine(QPointF(x, std::min<double>(y, length())), QPointF(x, std::max(to, 0.0)));
    };
    const double last = stepAt(0.0);
    const Controllers changed = dragged_ ? edited() : Controllers();
    for (const ControllerEvent& event : dragged_ ? changed : document().controllers()) {
        if (!isShown(event))
            continue;
        if (event.step > last)
            break;
        const double at = yOf(event.step), next = xOf(event.value);
        if (at < length()) {
            line(at);
            painter.drawLine(QPointF(x, at), QPointF(next, at));
            painter.setPen(Qt::NoPen);
            painter.setBrush(color);
            painter.drawEllipse(QPointF(next, at), kDot, kDot);
            y = at;
        }
        x = next;
    }
    line(0.0);
}

void ControllerLane::mousePressEvent(QMouseEvent* event)
{
    if (editor() == nullptr || dragged_)
        return;
    grabbed_.reset();
    const QPointF press = standing(event->position());
    double nearest = kGrabReach;
    for (const ControllerEvent& one : document().controllers()) {
        const QPointF distance = QPointF(xOf(one.value), yOf(one.step)) - press;
        const double length = std::hypot(distance.x(), distance.y());
        if (isShown(one) && length < nearest) {
            nearest = length;
            grabbed_ = one;
        }
    }
    if (event->button() == Qt::LeftButton)
        dragged_ = grabbed_ ? grabbed_ : eventAt(press);
    else if (event->button() == Qt::RightButton && grabbed_)
        document().setControllers(edited(), tr("Delete Controller"));
    update();
}

void ControllerLane::mouseMoveEvent(QMouseEvent* event)
{
    if (!dragged_)
        return;
    dragged_ = eventAt(standing(event->position()));
    update();
}

void ControllerLane::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !dragged_)
        return;
    Controllers controllers = edited();
    const QString text = grabbed_ ? tr("Move Controller") : tr("Draw Controller");
    dragged_.reset();
    grabbed_.reset();
    document().setControllers(std::move(controllers), text);
    update();
}

} // namespace velmora
