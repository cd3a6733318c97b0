#include "desktop/roll/SequenceScrollView.h"
#include "desktop/roll/SequenceView.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"

#include <QNativeGestureEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velmora {

namespace {

/// A notch changes the scale by an eighth, but at least by one pixel.
constexpr int kZoomDivisor = 8;

/// The largest value of a scroll bar in pixels. The height of a roll may not fit into an int.
constexpr double kMaxBarValue = 1e9;

/// What `zoomToSelection` shows at least, and how much more than the notes: keys on either side,
/// and a part of the time.
constexpr double kFewestKeysShown = 24, kKeysAround = 1;
constexpr double kFewestStepsShown = 32, kTimeAround = 1.05;

RollScale withinLimits(RollScale scale)
{
    const PrefRange width = prefRange("KeyWidth"), height = prefRange("KeyHeight");
    return {std::clamp(scale.keyWidth, width.least, width.greatest),
            std::clamp(scale.keyHeight, height.least, height.greatest)};
}

} // namespace

int SequenceScrollView::barValue(double pixels)
{
    return static_cast<int>(std::lround(std::clamp(pixels, 0.0, kMaxBarValue)));
}

void SequenceScrollView::setScale(RollScale scale)
{
    const QPointF anchor = anchor_.value_or(middle());
    // The value of a scroll bar that keeps the anchor in place.
    const auto rescaled = [](int value, double from, int before, int after) {
        return barValue((value + from) * after / before - from);
    };
    const QPoint place(rescaled(keyBar_->value(), anchor.x(), scale_.keyWidth, scale.keyWidth),
                       rescaled(timeBar_->value(), anchor.y(), scale_.keyHeight, scale.keyHeight));
    scale_ = scale;
    view_->setScale(scale);
    tellEditor();
    fitBars();
    scrollTo(place);
}

void SequenceScrollView::zoomSteps(int notches)
{
    zoom(&RollScale::keyHeight, notches);
}

void SequenceScrollView::zoomKeys(int notches)
{
    zoom(&RollScale::keyWidth, notches);
}

void SequenceScrollView::zoom(int RollScale::*size, int notches)
{
    RollScale scale = scale_;
    scale.*size += notches * std::max(1, scale.*size / kZoomDivisor);
    setScale(withinLimits(scale));
}

void SequenceScrollView::zoomToAll()
{
    if (const SequenceDocument* document = view_->document())
        showNotes(document->sequence().notes());
}

void SequenceScrollView::zoomToSelection()
{
    if (view_->document() == nullptr)
        return;
    std::vector<Note> selected;
    std::ranges::copy_if(view_->document()->sequence().notes(), std::back_inserter(selected),
                         &Note::selected);
    if (selected.empty())
        zoomToAll();
    else
        showNotes(selected);
}

void SequenceScrollView::showNotes(const std::vector<Note>& notes)
{
    if (notes.empty())
        return;
    const auto [low, high] = std::ranges::minmax(notes, {}, &Note::key);
    const auto endOf = [](const Note& note) { return note.start + note.length; };
    const double start = std::ranges::min(notes, {}, &Note::start).start;
    const double end = endOf(std::ranges::max(notes, {}, endOf));
    const double keys = std::max(high.key - low.key + 1.0 + 2 * kKeysAround, kFewestKeysShown);
    const double steps = std::max(end - start, kFewestStepsShown) * kTimeAround;
    const RollGeometry geometry = view_->rollGeometry();
    setScale(withinLimits({static_cast<int>(geometry.width / keys),
                           static_cast<int>(std::min(geometry.height / steps, kMaxBarValue))}));
    const double shown = geometry.height / scale_.keyHeight;
    scrollTo({barValue((low.key + high.key + 1.0) / 2.0 * scale_.keyWidth - middle().x()),
              barValue((start - std::max(0.0, (shown - (end - start)) / 2.0)) * scale_.keyHeight)});
    emit scrolledByUser();
}

void SequenceScrollView::zoomAround(QPointF place, int notches, bool keys)
{
    const QPoint inView = view_->mapFrom(this, place.toPoint());
    anchor_ = view_->rollGeometry().towards(inView - QPoint(0, view_->height()));
    if (keys)
        zoomKeys(notches);
    else
        zoomSteps(notches);
    anchor_.reset();
}

bool SequenceScrollView::event(QEvent* event)
{
    if (event->type() != QEvent::NativeGesture)
        return QWidget::event(event);
    const auto* gesture = static_cast<QNativeGestureEvent*>(event);
    if (gesture->gestureType() == Qt::BeginNativeGesture)
        pinch_ = 0.0;
    if (gesture->gestureType() != Qt::ZoomNativeGesture)
        return QWidget::event(event);
    pinch_ += gesture->value() * kZoomDivisor;
    const int notches = static_cast<int>(pinch_);
    pinch_ -= notches;
    zoomAround(gesture->position(), notches, false);
    return true;
}

} // namespace velmora
