#include "desktop/tuning/AdaptivePane.h"

#include "app/AppDelegate.h"
#include "desktop/tuning/DriftMeter.h"
#include "desktop/widgets/scrolling.h"
#include "preferences/Preferences.h"
#include "tuning/PureTemperament.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <chrono>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds kMeterInterval(100);

} // namespace

AdaptivePane::AdaptivePane(AppDelegate& application)
    : application_(application), content_(new QWidget(this)),
      corrects_(new QCheckBox(tr("Correct within"))), time_(new QSpinBox), drift_(new QComboBox),
      meter_(new DriftMeter), form_(new QFormLayout(content_))
{
    corrects_->setObjectName("CorrectSpelling");
    corrects_->setToolTip(tr("The last note of a chord may still mend the spelling of its first"));
    corrects_->setFocusPolicy(Qt::TabFocus);
    const PrefRange range = prefRange("CorrectionTime");
    time_->setObjectName("CorrectionTime");
    time_->setAccessibleName(tr("Correct within"));
    time_->setRange(range.least, range.greatest);
    time_->setSuffix(tr(" ms"));
    time_->setKeyboardTracking(false); // only complete numbers
    leaveWheelToScrolling(*time_);
    // In the order of `Drift`.
    drift_->addItems({tr("Tied to A"), tr("Free"), tr("Returns in silence")});
    drift_->setObjectName("Drift");
    drift_->setToolTip(
        tr("What becomes of the pitch where pure intervals lead it away: it is drawn "
           "back at once, stays there, or goes back while nothing sounds"));
    drift_->setFocusPolicy(Qt::TabFocus);
    leaveWheelToScrolling(*drift_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(content_);
    form_->setContentsMargins({});
    form_->addRow(corrects_, time_);
    form_->addRow(tr("Drift:"), drift_);
    form_->addRow(tr("Pitch now:"), meter_);
    const auto store = [this](const char* key, int value) {
        setPrefInt(key, value);
        application_.playing().read();
    };
    connect(corrects_, &QCheckBox::toggled, this, [this](bool isOn) {
        setPrefBool("CorrectSpelling", isOn);
        application_.playing().read();
    });
    connect(time_, &QSpinBox::valueChanged, this,
            [store](int milliseconds) { store("CorrectionTime", milliseconds); });
    connect(drift_, &QComboBox::activated, this, [store](int policy) { store("Drift", policy); });
    connect(&application_.playing(), &PlayingOptions::changed, this, &AdaptivePane::showOptions);
    connect(&application_.tunings(), &Tunings::changed, this, &AdaptivePane::showTuning);
    connect(&timer_, &QTimer::timeout, this, &AdaptivePane::showDrift);
    timer_.setInterval(kMeterInterval);
    showOptions();
    showTuning();
}

void AdaptivePane::showTuning()
{
    const Temperament* temperament = application_.tunings().untransposed();
    drifts_ = dynamic_cast<const PureTemperament*>(temperament) != nullptr;
    for (QWidget* field : {static_cast<QWidget*>(drift_), static_cast<QWidget*>(meter_)}) {
        field->setVisible(drifts_);
        form_->labelForField(field)->setVisible(drifts_);
    }
    content_->setVisible(dynamic_cast<const FollowingMeantone*>(temperament) != nullptr);
    updateTimer();
}

void AdaptivePane::showOptions()
{
    const QSignalBlocker corrects(corrects_), time(time_);
    corrects_->setChecked(getPrefBool("CorrectSpelling"));
    time_->setValue(getPrefInt("CorrectionTime"));
    time_->setEnabled(corrects_->isChecked());
    drift_->setCurrentIndex(getPrefInt("Drift"));
}

void AdaptivePane::showDrift()
{
    double cents = 0.0;
    application_.player().with(
        [&](const Instrument&, const Temperament& temperament) { cents = temperament.drift(); });
    meter_->setCents(cents);
}

void AdaptivePane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    updateTimer();
}

void AdaptivePane::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    updateTimer();
}

void AdaptivePane::updateTimer()
{
    if (!drifts_ || !isVisible()) {
        timer_.stop();
        return;
    }
    showDrift();
    timer_.start();
}

} // namespace velmora
