#include "desktop/instruments/StopRow.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/scrolling.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyle>

#include <cmath>

namespace velmora {

namespace {

constexpr int kFullVolume = 100; ///< In per cent.
constexpr int kLeastSlider = 36, kLeastName = 50;
constexpr int kEdge = 4; ///< Between the volume and the scroll bar.

} // namespace

StopRow::StopRow(AppDelegate& application, std::size_t stop)
    : application_(application), stop_(stop), switch_(new QCheckBox),
      slider_(new QSlider(Qt::Horizontal)), percent_(new QLabel)
{
    switch_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    switch_->setMinimumWidth(kLeastName);
    slider_->setRange(0, kFullVolume);
    slider_->setPageStep(kFullVolume / 10);
    slider_->setMinimumWidth(kLeastSlider);
    slider_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    leaveWheelToScrolling(*slider_);
    new LearnMenu(*slider_, application_,
                  {{{LearnedAction::Kind::Volume, static_cast<std::uint16_t>(stop)}, {}}});
    setReachable(false);
    for (QWidget* widget : {static_cast<QWidget*>(switch_), static_cast<QWidget*>(slider_)})
        widget->installEventFilter(this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, kEdge, 0);
    row->addWidget(switch_, 5);
    row->addWidget(slider_, 2);
    row->addWidget(percent_);
    connect(switch_, &QCheckBox::clicked, this, &StopRow::turn);
    connect(slider_, &QSlider::valueChanged, this, &StopRow::moveTo);
}

void StopRow::showStop(const QString& name, float volume)
{
    name_ = name;
    before_ = 0;
    switch_->setAccessibleName(name);
    switch_->setToolTip(tr("%1: turn on or off (Space)").arg(name));
    slider_->setAccessibleName(name);
    slider_->setToolTip(name);
    fitTexts();
    showVolume(volume);
}

void StopRow::showVolume(float volume)
{
    const QSignalBlocker blocker(slider_);
    slider_->setValue(static_cast<int>(std::lround(volume * kFullVolume)));
    showPercent();
}

void StopRow::turn(bool isOn)
{
    const int before = slider_->value();
    slider_->setValue(!isOn ? 0 : before_ > 0 ? before_ : kFullVolume);
    before_ = before;
}

void StopRow::moveTo(int percent)
{
    application_.setVolumeOfStop(stop_, static_cast<float>(percent) / kFullVolume);
    showPercent();
}

void StopRow::showPercent()
{
    switch_->setChecked(slider_->value() > 0);
    percent_->setText(tr("%1 %").arg(slider_->value()));
}

void StopRow::focusName()
{
    switch_->setFocus(Qt::TabFocusReason);
}

void StopRow::setReachable(bool isReachable)
{
    for (QWidget* widget : {static_cast<QWidget*>(switch_), static_cast<QWidget*>(slider_)})
        widget->setFocusPolicy(isReachable ? Qt::TabFocus : Qt::NoFocus);
}

void StopRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitTexts();
}

void StopRow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitTexts();
}

void StopRow::fitTexts()
{
    percent_->setMinimumWidth(
        percent_->fontMetrics().horizontalAdvance(tr("%1 %").arg(kFullVolume)));
    const QStyle& style = *switch_->style();
    const int room = switch_->width() - style.pixelMetric(QStyle::PM_IndicatorWidth) -
                     2 * style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    // An ampersand in a name is not a mnemonic.
    switch_->setText(
        switch_->fontMetrics().elidedText(name_, Qt::ElideRight, room).replace("&", "&&"));
}

bool StopRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        emit entered();
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        emit stepped(-1);
        return true;
    case Qt::Key_Down:
        emit stepped(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (watched == switch_)
            switch_->click();
        return watched == switch_;
    default:
        return false;
    }
}

} // namespace velmora
