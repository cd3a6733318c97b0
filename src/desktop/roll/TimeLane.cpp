#include "desktop/roll/TimeLane.h"

#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TimeEntryDialog.h"
#include "desktop/roll/editTimeEntry.h"
#include "sequencer/SequenceDocument.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

/// The thickness of the lane in heights of its letters, beside the roll and below it.
constexpr int kStandingThickness = 11, kLyingThickness = 5;

constexpr double kTextMargin = 3.0;

} // namespace

TimeLane::TimeLane(const SequenceView& view)
    : Lane(view, tr("Tempo and signatures"),
           tr("Tempos, time signatures, key signatures and markers. Double-click to add or change "
              "one, drag it to move it, and press Delete to remove it."))
{
    setFocusPolicy(Qt::StrongFocus);
}

void TimeLane::setEditor(SequenceEditor* editor)
{
    selected_.reset();
    draggedTo_.reset();
    Lane::setEditor(editor);
}

bool TimeLane::isEditable() const
{
    // In the plain reading a piece has no tempos of its own.
    return editor() != nullptr && document().reading() == Reading::Musical;
}

int TimeLane::preferredThickness() const
{
    return fontMetrics().height() * (isAcross() ? kLyingThickness : kStandingThickness);
}

QRectF TimeLane::columnOf(std::size_t kind) const
{
    const double size = static_cast<double>(thickness()) / kEntryKinds;
    const double place = size * static_cast<double>(kind);
    return isAcross() ? QRectF(0.0, place, width(), size) : QRectF(place, 0.0, size, height());
}

QRectF TimeLane::rectOf(const TimeEntry& entry) const
{
    const QRectF column = columnOf(entry.index());
    if (isAcross()) // yOf counts against the time
        return {length() - yOf(stepOf(entry)), column.top() + 1,
                fontMetrics().horizontalAdvance(entryText(entry)) + 3 * kTextMargin,
                column.height() - 1};
    const double textHeight = fontMetrics().height();
    return {column.left() + 1, yOf(stepOf(entry)) - textHeight, column.width() - 1, textHeight};
}

std::optional<TimeEntry> TimeLane::entryAt(QPointF point) const
{
    const auto entries = entriesOf(document().time());
    const auto found = std::ranges::find_if(
        entries, [&](const TimeEntry& entry) { return rectOf(entry).contains(point); });
    return found == entries.end() ? std::nullopt : std::optional(*found);
}

void TimeLane::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    for (std::size_t kind = 0; kind < kEntryKinds; ++kind) {
        const QRectF column = columnOf(kind).translated(0.5, 0.5);
        painter.drawLine(column.topLeft(), isAcross() ? column.topRight() : column.bottomLeft());
    }
    if (!isEditable())
        return;
    for (const TimeEntry& entry : entriesOf(document().time())) {
        const bool isSelected = entry == selected_;
        const QRectF place = rectOf(isSelected && draggedTo_ ? movedTo(entry, *draggedTo_) : entry);
        if (!place.intersects(rect()))
            continue;
        if (isSelected)
            painter.fillRect(place, palette().color(QPalette::Highlight));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawLine(place.bottomLeft(), isAcross() ? place.topLeft() : place.bottomRight());
        if (isSelected)
            painter.setPen(palette().color(QPalette::HighlightedText));
        const QRectF inner = place.adjusted(kTextMargin, 0, -kTextMargin, 0);
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(entryText(entry), Qt::ElideRight,
                                                  static_cast<int>(inner.width())));
    }
}

void TimeLane::select(std::optional<TimeEntry> entry)
{
    selected_ = std::move(entry);
    setAccessibleDescription(selected_ ? entryText(*selected_) : QString());
    update();
}

void TimeLane::mousePressEvent(QMouseEvent* event)
{
    if (!isEditable())
        return;
    press_ = event->position();
    select(entryAt(press_));
}

void TimeLane::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF way = event->position() - press_;
    if (!selected_ || !event->buttons().testFlag(Qt::LeftButton) ||
        (!draggedTo_ && way.manhattanLength() < QApplication::startDragDistance()))
        return;
    const int keyHeight = view().rollGeometry().keyHeight;
    const double steps = (isAcross() ? way.x() : -way.y()) / keyHeight;
    const double step = std::max(0.0, stepOf(*selected_) + steps);
    draggedTo_ = document().time().gridAt(step, visibleGrid(keyHeight));
    update();
}

void TimeLane::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (const auto step = std::exchange(draggedTo_, std::nullopt); step && selected_) {
        const TimeEntry moved = movedTo(*selected_, *step);
        replaceTimeEntry(document(), *selected_, moved);
        select(moved);
    }
}

void TimeLane::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!isEditable() || event->button() != Qt::LeftButton)
        return;
    if (const auto entry = entryAt(event->position())) {
        select(changeTimeEntry(document(), *entry, this));
        return;
    }
    const double step =
        document().time().gridAt(stepAt(standing(event->position()).y()), Grid::Beats);
    for (std::size_t kind = 0; kind < kEntryKinds; ++kind)
        if (columnOf(kind).contains(event->position()))
            addTimeEntry(document(), kind, step, this);
}

bool TimeLane::event(QEvent* event)
{
    constexpr std::array kLaneKeys{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,
                                   Qt::Key_Right,  Qt::Key_Return,   Qt::Key_Enter,
                                   Qt::Key_Delete, Qt::Key_Backspace};
    // These keys are also shortcuts of commands, which act on the notes.
    if (event->type() == QEvent::ShortcutOverride && isEditable()) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.modifiers() == Qt::NoModifier &&
            std::ranges::find(kLaneKeys, key.key()) != kLaneKeys.end()) {
            event->accept();
            return true;
        }
    }
    return Lane::event(event);
}

void TimeLane::keyPressEvent(QKeyEvent* event)
{
    if (!isEditable()) {
        Lane::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        selectNeighbour(true);
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
        selectNeighbour(false);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (selected_)
            select(changeTimeEntry(document(), *selected_, this));
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        removeSelected();
        break;
    default:
        Lane::keyPressEvent(event);
    }
}

void TimeLane::selectNeighbour(bool isLater)
{
    const auto entries = entriesOf(document().time());
    if (entries.empty())
        return;
    const auto found = selected_ ? std::ranges::find(entries, *selected_) : entries.end();
    if (found == entries.end())
        select(isLater ? entries.front() : entries.back());
    else if (isLater && std::next(found) != entries.end())
        select(*std::next(found));
    else if (!isLater && found != entries.begin())
        select(*std::prev(found));
}

void TimeLane::removeSelected()
{
    const auto entry = std::exchange(selected_, std::nullopt);
    if (entry)
        removeTimeEntry(document(), *entry);
}

void TimeLane::addTo(QMenu& menu, double step)
{
    for (std::size_t kind = 0; kind < kEntryKinds; ++kind)
        menu.addAction(addEntryText(kind),
                       [this, kind, step] { addTimeEntry(document(), kind, step, this); });
}

void TimeLane::contextMenuEvent(QContextMenuEvent* event)
{
    if (!isEditable())
        return;
    const bool isMouse = event->reason() == QContextMenuEvent::Mouse;
    if (isMouse)
        select(entryAt(event->pos()));
    QMenu menu(this);
    if (selected_) {
        menu.addAction(tr("&Change…"), this,
                       [this] { select(changeTimeEntry(document(), *selected_, this)); });
        menu.addAction(tr("&Delete"), this, &TimeLane::removeSelected);
        menu.addSeparator();
    }
    const double step =
        isMouse ? stepAt(standing(event->pos()).y()) : document().transport().position();
    addTo(menu, document().time().gridAt(step, Grid::Beats));
    menu.exec(event->globalPos());
}

} // namespace velmora
