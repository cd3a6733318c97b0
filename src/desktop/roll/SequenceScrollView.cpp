#include "desktop/roll/SequenceScrollView.h"

#include "desktop/roll/KeyRuler.h"
#include "desktop/roll/SequenceView.h"
#include "preferences/Preferences.h"

#include <QGridLayout>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// A notch of the wheel in eighths of a degree, and the pixels that it scrolls.
constexpr int kNotch = 120;
constexpr int kPixelsPerNotch = 64;

/// A notch changes the scale by an eighth, but at least by one pixel.
constexpr int kZoomDivisor = 8;

/// The largest value of a scroll bar in pixels. The height of a roll may not fit into an int.
constexpr double kMaxBarValue = 1e9;

int barValue(double pixels)
{
    return static_cast<int>(std::lround(std::clamp(pixels, 0.0, kMaxBarValue)));
}

/// The value of a scroll bar after a change of scale that keeps `anchor` in place.
int rescaled(int value, double anchor, int before, int after)
{
    return barValue((value + anchor) * after / before - anchor);
}

} // namespace

SequenceScrollView::SequenceScrollView(QWidget* parent)
    : QWidget(parent), view_(new SequenceView), ruler_(new KeyRuler),
      horizontal_(new QScrollBar(Qt::Horizontal)), vertical_(new QScrollBar(Qt::Vertical)),
      keyWidth_(getPrefInt("KeyWidth")), keyHeight_(getPrefInt("KeyHeight"))
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(view_, 0, 0);
    layout->addWidget(vertical_, 0, 1);
    layout->addWidget(ruler_, 1, 0);
    layout->addWidget(horizontal_, 2, 0);
    setFocusProxy(view_);

    vertical_->setInvertedAppearance(true); // time runs upwards
    horizontal_->setAccessibleName(tr("Keys shown"));
    vertical_->setAccessibleName(tr("Time shown"));
    for (QScrollBar* bar : {horizontal_, vertical_}) {
        connect(bar, &QScrollBar::valueChanged, this, &SequenceScrollView::follow);
        connect(bar, &QScrollBar::actionTriggered, this, &SequenceScrollView::scrolledByUser);
        bar->installEventFilter(this);
    }
    view_->installEventFilter(this);
    connect(view_, &SequenceView::draggedBeyondEdge, this, [this](QPoint pixels) {
        scrollTo(location() + pixels);
        emit scrolledByUser();
    });
}

void SequenceScrollView::updateSize(double steps)
{
    steps_ = steps;
    const int keyWidth = getPrefInt("KeyWidth");
    const int keyHeight = getPrefInt("KeyHeight");
    const QPointF anchor = anchor_.value_or(QPointF(view_->width() / 2.0, view_->height() / 2.0));
    const QPoint place(rescaled(horizontal_->value(), anchor.x(), keyWidth_, keyWidth),
                       rescaled(vertical_->value(), anchor.y(), keyHeight_, keyHeight));
    const bool isScaled = keyWidth != keyWidth_ || keyHeight != keyHeight_;
    keyWidth_ = keyWidth;
    keyHeight_ = keyHeight;
    fitBars();
    if (isScaled)
        scrollTo(place);
    view_->redraw();
    ruler_->update();
}

void SequenceScrollView::fitBars()
{
    const RollGeometry geometry = view_->rollGeometry();
    horizontal_->setRange(0, barValue(geometry.rollWidth() - geometry.width));
    vertical_->setRange(0, barValue(std::ceil(geometry.rollHeight(steps_)) - geometry.height));
    horizontal_->setPageStep(view_->width());
    vertical_->setPageStep(view_->height());
    horizontal_->setSingleStep(keyWidth_);
    vertical_->setSingleStep(keyHeight_);
    follow();
}

void SequenceScrollView::follow()
{
    view_->scrollTo(location());
    ruler_->scrollTo(location().x());
}

void SequenceScrollView::scrollTo(QPoint point)
{
    horizontal_->setValue(point.x());
    vertical_->setValue(point.y());
}

void SequenceScrollView::scrollVertically(double y)
{
    vertical_->setValue(barValue(y));
}

QPoint SequenceScrollView::location() const
{
    return {horizontal_->value(), vertical_->value()};
}

void SequenceScrollView::zoomSteps(int notches)
{
    zoom("KeyHeight", notches);
}

void SequenceScrollView::zoomKeys(int notches)
{
    zoom("KeyWidth", notches);
}

void SequenceScrollView::zoom(const char* preference, int notches)
{
    const int value = getPrefInt(preference);
    const PrefRange range = prefRange(preference);
    const int zoomedValue = std::clamp(value + notches * std::max(1, value / kZoomDivisor),
                                       range.least, range.greatest);
    if (zoomedValue == value)
        return;
    setPrefInt(preference, zoomedValue);
    emit zoomed();
}

void SequenceScrollView::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const bool isZoom = event->modifiers().testFlag(Qt::ControlModifier);
    wheelRemainder_ += event->angleDelta();
    if (isZoom) {
        const int notches = wheelRemainder_.y() / kNotch;
        wheelRemainder_.ry() %= kNotch;
        const QPointF place = view_->mapFrom(this, event->position().toPoint());
        anchor_ = QPointF(place.x(), view_->height() - place.y());
        if (event->modifiers().testFlag(Qt::ShiftModifier))
            zoomKeys(notches);
        else
            zoomSteps(notches);
        anchor_.reset();
        return;
    }
    QPoint pixels = event->pixelDelta();
    if (pixels.isNull())
        pixels = event->angleDelta() * kPixelsPerNotch / kNotch;
    wheelRemainder_ = {};
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        pixels = pixels.transposed();
    scrollTo({horizontal_->value() - pixels.x(), vertical_->value() + pixels.y()});
    emit scrolledByUser();
}

bool SequenceScrollView::scrollByKey(int key)
{
    struct Scroll {
        Qt::Key key;
        QScrollBar* bar;
        QAbstractSlider::SliderAction action;
    };
    for (const Scroll& scroll : {Scroll{Qt::Key_Left, horizontal_, QScrollBar::SliderSingleStepSub},
                                 {Qt::Key_Right, horizontal_, QScrollBar::SliderSingleStepAdd},
                                 {Qt::Key_PageDown, vertical_, QScrollBar::SliderPageStepSub},
                                 {Qt::Key_PageUp, vertical_, QScrollBar::SliderPageStepAdd},
                                 {Qt::Key_Home, vertical_, QScrollBar::SliderToMinimum},
                                 {Qt::Key_End, vertical_, QScrollBar::SliderToMaximum}}) {
        if (scroll.key == key) {
            scroll.bar->triggerAction(scroll.action);
            return true;
        }
    }
    return false;
}

void SequenceScrollView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitBars();
}

bool SequenceScrollView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == view_ && event->type() == QEvent::Resize)
        fitBars();
    // Over a scroll bar the wheel does the same as over the roll.
    if (watched != view_ && event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (watched == view_ && event->type() == QEvent::KeyPress)
        return scrollByKey(static_cast<QKeyEvent*>(event)->key());
    return QWidget::eventFilter(watched, event);
}

} // namespace velmora
