#include "desktop/roll/VelocityLane.h"

#include "desktop/roll/RollColors.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

/// A bar can be grabbed this many pixels above and below it.
constexpr double kBarReach = 4.0;

/// The thickness of a bar and the size of the knob at its end, in pixels.
constexpr double kBar = 2.0, kKnob = 6.0;

/// The lane shows velocities from 0 at this distance from its left edge to 1 at its right edge.
constexpr double kVelocityMargin = 5.0;

} // namespace

VelocityLane::VelocityLane(const SequenceView& view)
    : Lane(
          view, tr("Velocities"),
          tr("Drag over the bars to change velocities. With Shift, they follow a straight line. If "
             "notes are selected, only they change."))
{
}

void VelocityLane::setEditor(SequenceEditor* editor)
{
    isDrawing_ = false;
    drawn_.clear();
    Lane::setEditor(editor);
}

double VelocityLane::xOf(double velocity) const
{
    return kVelocityMargin + velocity * (thickness() - 2 * kVelocityMargin);
}

double VelocityLane::velocityAt(double x) const
{
    return std::clamp((x - kVelocityMargin) / (thickness() - 2 * kVelocityMargin), 0.0, 1.0);
}

template <class Use> void VelocityLane::visit(double from, double to, Use use) const
{
    const auto& notes = document().sequence().notes();
    auto note = std::ranges::lower_bound(notes, from, {}, &Note::start);
    for (; note != notes.end() && note->start <= to; ++note)
        use(*note);
}

void VelocityLane::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paintGround(painter);
    if (editor() == nullptr)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const RollColors colors(palette());
    const auto drawBar = [&](const Note& note) {
        const auto drawn = drawn_.find(note.id);
        const double x = xOf(drawn != drawn_.end() ? drawn->second : note.velocity);
        const double y = yOf(note.start);
        painter.fillRect(QRectF(0.0, y - kBar / 2, x, kBar), colors.of(note));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colors.of(note));
        painter.drawEllipse(QPointF(x, y), kKnob / 2, kKnob / 2);
    };
    const double from = stepAt(length() + kKnob), to = stepAt(-kKnob);
    for (const bool selected : {false, true}) // the selected ones on top
        visit(from, to, [&](const Note& note) {
            if (note.selected == selected)
                drawBar(note);
        });
}

void VelocityLane::mousePressEvent(QMouseEvent* event)
{
    if (editor() == nullptr || event->button() != Qt::LeftButton)
        return;
    isDrawing_ = true;
    press_ = last_ = standing(event->position());
    drawLine(press_, press_);
}

void VelocityLane::mouseMoveEvent(QMouseEvent* event)
{
    if (!isDrawing_)
        return;
    const QPointF place = standing(event->position());
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        drawn_.clear();
        drawLine(press_, place);
    } else {
        drawLine(last_, place);
    }
    last_ = place;
}

void VelocityLane::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !std::exchange(isDrawing_, false))
        return;
    const auto drawn = std::exchange(drawn_, {});
    std::vector<Note> notes;
    for (const auto& [id, velocity] : drawn)
        if (const Note* note = document().sequence().find(id))
            notes.push_back(*note);
    editor()->setVelocity(notes, [&](const Note& note) { return drawn.at(note.id); });
    update();
}

void VelocityLane::drawLine(QPointF from, QPointF to)
{
    const Sequence& sequence = document().sequence();
    const bool isAnySelected = !sequence.selection().empty();
    const double low = std::max(from.y(), to.y()), high = std::min(from.y(), to.y());
    visit(stepAt(low + kBarReach), stepAt(high - kBarReach), [&](const Note& note) {
        if ((isAnySelected && !note.selected) || sequence.isLocked(note))
            return;
        const double part =
            low == high ? 1.0
                        : std::clamp((yOf(note.start) - from.y()) / (to.y() - from.y()), 0.0, 1.0);
        drawn_[note.id] = velocityAt(from.x() + (to.x() - from.x()) * part);
    });
    update();
}

} // namespace velmora
