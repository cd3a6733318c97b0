#include "desktop/roll/SequenceScrollView.h"

#include "desktop/roll/KeyRuler.h"
#include "desktop/roll/Lanes.h"
#include "desktop/roll/OutlyingNotes.h"
#include "desktop/roll/SequenceView.h"
#include "desktop/roll/TimeRuler.h"
#include "desktop/widgets/motion.h"
#include "desktop/widgets/scheme.h"
#include "preferences/Preferences.h"
#include "sequencer/SequenceDocument.h"
#include "sequencer/SequenceEditor.h"

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

constexpr int kGlideMilliseconds = 120;

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
      timeRuler_(new TimeRuler(*view_)), lanes_(new Lanes(*view_)),
      outlyingNotes_(new OutlyingNotes(*view_)), horizontal_(new QScrollBar(Qt::Horizontal)),
      vertical_(new QScrollBar(Qt::Vertical)), keyWidth_(getPrefInt("KeyWidth")),
      keyHeight_(getPrefInt("KeyHeight"))
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(timeRuler_, 0, 0);
    layout->addWidget(view_, 0, 1);
    layout->addWidget(lanes_, 0, 2);
    layout->addWidget(vertical_, 0, 3);
    layout->addWidget(ruler_, 1, 1);
    layout->addWidget(horizontal_, 2, 1);
    layout->setColumnStretch(1, 1);
    timeRuler_->setVisible(preferredScheme() == Scheme::Calm);
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
    glide_.setDuration(kGlideMilliseconds);
    glide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&glide_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& place) { setBars(place.toPoint()); });
    connect(view_, &SequenceView::documentChanged, this, [this] {
        ruler_->setDocument(view_->document());
        timeRuler_->setDocument(view_->document(), view_->editor());
        lanes_->setEditor(view_->editor());
        setGrid();
    });
    connect(outlyingNotes_, &OutlyingNotes::chosen, this, &SequenceScrollView::reveal);
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
    timeRuler_->setVisible(preferredScheme() == Scheme::Calm);
    timeRuler_->update();
    lanes_->update();
    view_->redraw();
    ruler_->update();
    outlyingNotes_->update();
    setGrid();
}

void SequenceScrollView::setGrid()
{
    if (SequenceEditor* editor = view_->editor())
        editor->setGrid(visibleGrid(keyHeight_));
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
    timeRuler_->update();
    lanes_->update();
}

void SequenceScrollView::scrollTo(QPoint point)
{
    glide_.stop();
    setBars(point);
}

void SequenceScrollView::glideTo(QPoint point)
{
    if (reducesMotion(*this)) {
        scrollTo(point);
        return;
    }
    glide_.stop();
    glide_.setStartValue(location());
    glide_.setEndValue(QPoint(std::clamp(point.x(), 0, horizontal_->maximum()),
                              std::clamp(point.y(), 0, vertical_->maximum())));
    glide_.start();
}

QPoint SequenceScrollView::destination() const
{
    return glide_.state() == QAbstractAnimation::Running ? glide_.endValue().toPoint() : location();
}

void SequenceScrollView::setBars(QPoint point)
{
    horizontal_->setValue(point.x());
    vertical_->setValue(point.y());
}

void SequenceScrollView::scrollVertically(double y)
{
    scrollTo({destination().x(), barValue(y)});
}

void SequenceScrollView::reveal(const Note& note)
{
    glideTo({barValue((note.key + 0.5) * keyWidth_ - view_->width() / 2.0),
             barValue(note.start * keyHeight_ - view_->height() / 2.0)});
    emit scrolledByUser();
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
    wheelRemainder_ += event->angleDelta().isNull() ? event->pixelDelta() * kNotch / kPixelsPerNotch
                                                    : event->angleDelta();
    if (isZoom) {
        const int notches = wheelRemainder_.y() / kNotch;
        wheelRemainder_.ry() %= kNotch;
        zoomAround(event->position(), notches, event->modifiers().testFlag(Qt::ShiftModifier));
        return;
    }
    if (event->modifiers().testFlag(Qt::AltModifier)) {
        const QPoint turned = wheelRemainder_; // with Alt, Qt turns the wheel sideways
        const int notches = (turned.x() + turned.y()) / kNotch;
        wheelRemainder_ = QPoint(0, (turned.x() + turned.y()) % kNotch);
        if (notches != 0)
            view_->changeVelocityAt(view_->mapFrom(this, event->position()), notches);
        return;
    }
    QPoint pixels = event->pixelDelta();
    const bool isTouchpad = !pixels.isNull(); // it moves smoothly itself
    if (!isTouchpad)
        pixels = event->angleDelta() * kPixelsPerNotch / kNotch;
    wheelRemainder_ = {};
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        pixels = pixels.transposed();
    const QPoint place = destination() + QPoint(-pixels.x(), pixels.y());
    if (isTouchpad)
        scrollTo(place);
    else
        glideTo(place);
    emit scrolledByUser();
}

void SequenceScrollView::zoomAround(QPointF place, int notches, bool keys)
{
    const QPoint inView = view_->mapFrom(this, place.toPoint());
    anchor_ = QPointF(inView.x(), view_->height() - inView.y());
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
            const QPoint before = location();
            setBars(destination());
            scroll.bar->triggerAction(scroll.action);
            const QPoint after = location();
            setBars(before);
            glideTo(after);
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
