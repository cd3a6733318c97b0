#include "desktop/console/KnobGrid.h"

#include "desktop/console/Drawknob.h"

#include <QEvent>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kGap = 4;

} // namespace

void KnobGrid::add(Drawknob& knob)
{
    knob.setParent(this);
    knobs_.push_back(&knob);
}

void KnobGrid::arrange()
{
    const int columns = this->columns(width());
    const int cell = (width() + kGap) / columns;
    const int height = knobSize().height();
    int place = 0;
    for (Drawknob* knob : knobs_) {
        if (knob->isHidden())
            continue;
        knob->setGeometry(place % columns * cell, place / columns * (height + kGap), cell - kGap,
                          height);
        ++place;
    }
    updateGeometry();
}

int KnobGrid::heightForWidth(int width) const
{
    const int columns = this->columns(width);
    return (shownCount() + columns - 1) / columns * (knobSize().height() + kGap);
}

QSize KnobGrid::sizeHint() const
{
    return {2 * knobSize().width() + kGap, heightForWidth(2 * knobSize().width() + kGap)};
}

QSize KnobGrid::minimumSizeHint() const
{
    return {knobSize().width(), 0};
}

void KnobGrid::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void KnobGrid::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrange();
}

QSize KnobGrid::knobSize() const
{
    return knobs_.empty() ? QSize(1, 1) : knobs_.front()->sizeHint();
}

int KnobGrid::columns(int width) const
{
    return std::max(1, (width + kGap) / (knobSize().width() + kGap));
}

int KnobGrid::shownCount() const
{
    return static_cast<int>(
        std::ranges::count_if(knobs_, [](const Drawknob* knob) { return !knob->isHidden(); }));
}

} // namespace velmora
