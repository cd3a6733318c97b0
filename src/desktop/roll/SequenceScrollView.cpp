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
#include <iterator>
#include <vector>

namespace velmora {

namespace {

/// A notch of the wheel in eighths of a degree, and the pixels that it scrolls.
constexpr int kNotch = 120;
constexpr int kPixelsPerNotch = 64;

constexpr int kGlideMilliseconds = 120;

} // namespace

SequenceScrollView::SequenceScrollView(QWidget* parent)
    : QWidget(parent), view_(new SequenceView), ruler_(new KeyRuler),
      timeRuler_(new TimeRuler(*view_)), lanes_(new Lanes(*view_)),
      outlyingNotes_(new OutlyingNotes(*view_)), keyBar_(new QScrollBar), timeBar_(new QScrollBar)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->setColumnStretch(1, 1);
    view_->setTimeAcross(getPrefBool("TimeRunsAcross"));
    arrange();
    timeRuler_->setVisible(preferredScheme() == Scheme::Calm);
    setFocusProxy(view_);

    keyBar_->setAccessibleName(tr("Keys shown"));
    timeBar_->setAccessibleName(tr("Time shown"));
    for (QScrollBar* bar : {keyBar_, timeBar_}) {
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
        tellEditor();
    });
    connect(outlyingNotes_, &OutlyingNotes::chosen, this, &SequenceScrollView::reveal);
    connect(view_, &SequenceView::draggedBeyondEdge, this, [this](QPoint pixels) {
        scrollTo(location() + pixels);
        emit scrolledByUser();
    });
}

void SequenceScrollView::arrange()
{
    struct Place {
        QWidget* widget;
        int row, column; ///< While time runs upwards.
        int rowAcross, columnAcross;
    };
    const bool isAcross = view_->rollGeometry().isAcross;
    auto* grid = static_cast<QGridLayout*>(layout());
    for (const Place& place : {Place{timeRuler_, 0, 0, 0, 1},
                               {view_, 0, 1, 1, 1},
                               {lanes_, 0, 2, 2, 1},
                               {timeBar_, 0, 3, 3, 1},
                               {ruler_, 1, 1, 1, 0},
                               {keyBar_, 2, 1, 1, 2}}) {
        grid->removeWidget(place.widget);
        if (isAcross)
            grid->addWidget(place.widget, place.rowAcross, place.columnAcross);
        else
            grid->addWidget(place.widget, place.row, place.column);
    }
    grid->setRowStretch(0, isAcross ? 0 : 1);
    grid->setRowStretch(1, isAcross ? 1 : 0);
    keyBar_->setOrientation(isAcross ? Qt::Vertical : Qt::Horizontal);
    timeBar_->setOrientation(isAcross ? Qt::Horizontal : Qt::Vertical);
    for (QScrollBar* bar : {keyBar_, timeBar_}) // keys and time run upwards
        bar->setInvertedAppearance(bar->orientation() == Qt::Vertical);
}

void SequenceScrollView::setTimeAcross(bool isAcross)
{
    if (isAcross == view_->rollGeometry().isAcross)
        return;
    const QPointF shown = location() + middle();
    view_->setTimeAcross(isAcross);
    arrange();
    layout()->activate(); // gives the view its new size
    fitBars();
    scrollTo((shown - middle()).toPoint());
}

QPointF SequenceScrollView::middle() const
{
    const RollGeometry geometry = view_->rollGeometry();
    return {geometry.width / 2.0, geometry.height / 2.0};
}

void SequenceScrollView::updateSize(double steps)
{
    steps_ = steps;
    setTimeAcross(getPrefBool("TimeRunsAcross"));
    if (preferred_ != preferredScale())
        setScale(preferred_ = preferredScale());
    fitBars();
    timeRuler_->setVisible(preferredScheme() == Scheme::Calm);
    timeRuler_->update();
    lanes_->update();
    view_->redraw();
    ruler_->update();
    outlyingNotes_->update();
}

void SequenceScrollView::tellEditor()
{
    if (SequenceEditor* editor = view_->editor())
        editor->setStepHeight(scale_.keyHeight);
}

void SequenceScrollView::fitBars()
{
    const RollGeometry geometry = view_->rollGeometry();
    keyBar_->setRange(0, barValue(geometry.rollWidth() - geometry.width));
    timeBar_->setRange(0, barValue(std::ceil(geometry.rollHeight(steps_)) - geometry.height));
    keyBar_->setPageStep(static_cast<int>(geometry.width));
    timeBar_->setPageStep(static_cast<int>(geometry.height));
    keyBar_->setSingleStep(scale_.keyWidth);
    timeBar_->setSingleStep(scale_.keyHeight);
    follow();
}

void SequenceScrollView::follow()
{
    view_->scrollTo(location());
    ruler_->show(view_->rollGeometry());
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
    glide_.setEndValue(QPoint(std::clamp(point.x(), 0, keyBar_->maximum()),
                              std::clamp(point.y(), 0, timeBar_->maximum())));
    glide_.start();
}

QPoint SequenceScrollView::destination() const
{
    return glide_.state() == QAbstractAnimation::Running ? glide_.endValue().toPoint() : location();
}

void SequenceScrollView::setBars(QPoint point)
{
    keyBar_->setValue(point.x());
    timeBar_->setValue(point.y());
}

void SequenceScrollView::scrollToStep(double step)
{
    scrollTo({destination().x(), barValue(step * scale_.keyHeight)});
}

void SequenceScrollView::scrollToKey(double key)
{
    scrollTo({barValue((key + 0.5) * scale_.keyWidth - middle().x()), 0});
}

void SequenceScrollView::reveal(const Note& note)
{
    glideTo({barValue((note.key + 0.5) * scale_.keyWidth - middle().x()),
             barValue(note.start * scale_.keyHeight - middle().y())});
    emit scrolledByUser();
}

QPoint SequenceScrollView::location() const
{
    return {keyBar_->value(), timeBar_->value()};
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
    const QPoint place = destination() + view_->rollGeometry().towards(-pixels);
    if (isTouchpad)
        scrollTo(place);
    else
        glideTo(place);
    emit scrolledByUser();
}

bool SequenceScrollView::scrollByKey(int key)
{
    struct Scroll {
        Qt::Key key;
        QScrollBar* bar;
        QAbstractSlider::SliderAction action;
    };
    // The other arrows move the position along the time.
    const bool isAcross = view_->rollGeometry().isAcross;
    const Qt::Key down = isAcross ? Qt::Key_Down : Qt::Key_Left;
    const Qt::Key up = isAcross ? Qt::Key_Up : Qt::Key_Right;
    for (const Scroll& scroll : {Scroll{down, keyBar_, QScrollBar::SliderSingleStepSub},
                                 {up, keyBar_, QScrollBar::SliderSingleStepAdd},
                                 {Qt::Key_PageDown, timeBar_, QScrollBar::SliderPageStepSub},
                                 {Qt::Key_PageUp, timeBar_, QScrollBar::SliderPageStepAdd},
                                 {Qt::Key_Home, timeBar_, QScrollBar::SliderToMinimum},
                                 {Qt::Key_End, timeBar_, QScrollBar::SliderToMaximum}}) {
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
    if (watched == view_ && event->type() == QEvent::Resize) {
        const auto* resized = static_cast<QResizeEvent*>(event);
        const auto keys = [&](QSize size) {
            return view_->rollGeometry().isAcross ? size.height() : size.width();
        };
        const int middle = keyBar_->value() + std::max(0, keys(resized->oldSize())) / 2;
        fitBars();
        keyBar_->setValue(middle - keys(resized->size()) / 2);
    }
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
