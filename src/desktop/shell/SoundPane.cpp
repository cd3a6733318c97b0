#include "desktop/shell/SoundPane.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/LevelMeter.h"
#include "desktop/widgets/messages.h"
#include "preferences/Preferences.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <chrono>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto kLevelInterval = 33ms;
constexpr auto kStatusInterval = 500ms;
constexpr int kChoiceWidth = 260;
constexpr int kRates[] = {44'100, 48'000, 88'200, 96'000, 176'400, 192'000};
constexpr int kLeastPeriod = 16, kGreatestPeriod = 4096;

/// Selects the item with this data. If there is none, adds one with this text.
void select(QComboBox& box, const QVariant& data, const QString& text)
{
    if (box.findData(data) < 0)
        box.addItem(text, data);
    box.setCurrentIndex(box.findData(data));
}

} // namespace

SoundPane::SoundPane(AppDelegate& application)
    : application_(application), volume_(new QSlider(Qt::Horizontal)), percent_(new QLabel),
      status_(new QLabel), meter_(new LevelMeter)
{
    auto* form = new QFormLayout(this);
    driver_ = addChoice(*form, tr("Ou&tput:"), "Output",
                        tr("The sound server or driver that Velmora plays through"));
    device_ = addChoice(*form, tr("&Device:"), "OutputDevice", tr("The device that is heard"));
    rate_ = addChoice(*form, tr("Sample &rate:"), "OutputRate",
                      tr("A JACK server determines the sample rate itself"));
    period_ = addChoice(*form, tr("&Period:"), "OutputPeriod",
                        tr("The shorter the period, the sooner a key sounds, and the more the "
                           "machine has to do. With JACK, it applies to all programs"));
    status_->setWordWrap(true);
    status_->setTextFormat(Qt::PlainText);
    status_->setObjectName("OutputStatus");
    form->addRow(tr("Playing:"), status_);
    auto* volumeLabel = new QLabel(tr("Master &volume:"));
    volumeLabel->setBuddy(volume_);
    form->addRow(volumeLabel, makeVolumeRow());
    form->addRow(tr("Level:"), meter_);
    form->addRow(QString(), makeToneRow());
    connect(driver_, &QComboBox::activated, this, &SoundPane::chooseDriver);
    for (QComboBox* box : {device_, rate_, period_})
        connect(box, &QComboBox::activated, this, &SoundPane::choose);
    connect(&levelTimer_, &QTimer::timeout, this,
            [this] { meter_->setPeaks(application_.engine().takePeaks()); });
    connect(&statusTimer_, &QTimer::timeout, this, [this] {
        takeOutputs();
        showStatus();
    });
    connect(&application_, &AppDelegate::outputChanged, this, &SoundPane::showStatus);
    connect(&application_, &AppDelegate::masterVolumeMoved, this,
            [this] { volume_->setValue(getPrefInt("MasterVolume")); });
    application_.engine().add(tone_);
    read();
}

SoundPane::~SoundPane()
{
    application_.engine().remove(tone_);
}

QComboBox* SoundPane::addChoice(QFormLayout& form, const QString& label, const char* name,
                                const QString& help)
{
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setToolTip(help);
    box->setMinimumWidth(kChoiceWidth);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    form.addRow(label, box);
    return box;
}

QLayout* SoundPane::makeVolumeRow()
{
    volume_->setObjectName("MasterVolume");
    volume_->setAccessibleName(tr("Master volume"));
    volume_->setRange(0, 100);
    new LearnMenu(*volume_, application_, {{{LearnedAction::Kind::MasterVolume}, {}}});
    percent_->setMinimumWidth(percent_->fontMetrics().horizontalAdvance("100 %"));
    connect(volume_, &QSlider::valueChanged, this, &SoundPane::setVolume);
    auto* row = new QHBoxLayout;
    row->addWidget(volume_);
    row->addWidget(percent_);
    return row;
}

QLayout* SoundPane::makeToneRow()
{
    auto* play = new QPushButton(tr("Play Test To&ne"));
    play->setObjectName("TestTone");
    play->setToolTip(tr("Plays a short, quiet tone"));
    connect(play, &QPushButton::clicked, this, [this] { tone_.play(); });
    auto* row = new QHBoxLayout;
    row->addWidget(play);
    row->addStretch();
    return row;
}

void SoundPane::showEvent(QShowEvent* event)
{
    levelTimer_.start(kLevelInterval);
    statusTimer_.start(kStatusInterval);
    read();
    search();
    QWidget::showEvent(event);
}

void SoundPane::hideEvent(QHideEvent* event)
{
    levelTimer_.stop();
    statusTimer_.stop();
    QWidget::hideEvent(event);
}

void SoundPane::read()
{
    fillChoices();
    volume_->setValue(getPrefInt("MasterVolume"));
    setVolume(volume_->value()); // also if that is where the slider was
    showStatus();
}

void SoundPane::fillChoices()
{
    const OutputSettings output = preferredOutput();
    for (QComboBox* box : {driver_, rate_, period_})
        box->clear();
    driver_->addItem(tr("Automatic"), QString());
    for (const std::string& name : outputDrivers()) {
        const auto found =
            std::find_if(outputs_.begin(), outputs_.end(),
                         [&](const OutputDriver& each) { return each.name == name; });
        const QString title = translated(driverTitle(name));
        driver_->addItem(
            found == outputs_.end() || found->isAvailable ? title : tr("%1 (missing)").arg(title),
            QString::fromStdString(name));
    }
    const QString driver = QString::fromStdString(output.driver);
    select(*driver_, driver, tr("%1 (missing)").arg(driver));

    rate_->addItem(tr("Automatic"), 0);
    for (const int rate : kRates)
        rate_->addItem(tr("%L1 kHz").arg(rate / 1000.0), rate);
    select(*rate_, static_cast<int>(output.rate), tr("%L1 kHz").arg(output.rate / 1000.0));
    period_->addItem(tr("Automatic"), 0);
    for (int period = kLeastPeriod; period <= kGreatestPeriod; period *= 2)
        period_->addItem(tr("%1 frames").arg(period), period);
    const auto period = static_cast<int>(output.period);
    select(*period_, period, tr("%1 frames").arg(period));
    fillDevices(output.device);
    rate_->setEnabled(output.driver != "jack");
}

void SoundPane::fillDevices(const std::string& device)
{
    device_->clear();
    device_->addItem(tr("Default"), QString());
    for (const OutputDriver& driver : outputs_) {
        if (driver.name != driver_->currentData().toString().toStdString())
            continue;
        for (const OutputDevice& each : driver.devices)
            device_->addItem(QString::fromStdString(each.title), QString::fromStdString(each.name));
    }
    const QString name = QString::fromStdString(device);
    select(*device_, name, outputs_.empty() ? name : tr("%1 (missing)").arg(name));
    device_->setEnabled(device_->count() > 1);
}

void SoundPane::search()
{
    if (!searching_.valid())
        searching_ = std::async(std::launch::async, listOutputs);
}

void SoundPane::takeOutputs()
{
    if (!searching_.valid() || searching_.wait_for(0s) != std::future_status::ready)
        return;
    outputs_ = searching_.get();
    const bool isChoosing =
        std::ranges::any_of(std::initializer_list<QComboBox*>{driver_, device_, rate_, period_},
                            [](const QComboBox* box) { return box->view()->isVisible(); });
    if (!isChoosing)
        fillChoices();
}

void SoundPane::chooseDriver()
{
    fillDevices({}); // a device belongs to one driver
    choose();
    rate_->setEnabled(driver_->currentData() != "jack");
}

void SoundPane::choose()
{
    const OutputSettings output{driver_->currentData().toString().toStdString(),
                                device_->currentData().toString().toStdString(),
                                rate_->currentData().toDouble(),
                                static_cast<std::size_t>(period_->currentData().toInt())};
    setPreferredOutput(output);
    if (application_.output() != nullptr)
        application_.output()->want(output);
}

void SoundPane::setVolume(int percent)
{
    percent_->setText(tr("%1 %").arg(percent));
    if (percent != getPrefInt("MasterVolume"))
        setPrefInt("MasterVolume", percent);
    application_.engine().setVolume(preferredVolume());
}

void SoundPane::showStatus()
{
    if (application_.output() == nullptr)
        return;
    const OutputStatus output = application_.output()->status();
    if (output.driver.empty())
        return; // the next one is about to play
    QString text = tr("%1, %L2 kHz, %L3 frames (%L4 ms)")
                       .arg(QString::fromStdString(driverTitle(output.driver)))
                       .arg(output.rate / 1000.0)
                       .arg(output.period)
                       .arg(1000.0 * static_cast<double>(output.period) / output.rate, 0, 'f', 1);
    if (output.driver != "none")
        text += tr("\nTo the sound card: %L1 ms. Lost periods: %L2.")
                    .arg(1000.0 * output.latency, 0, 'f', 1)
                    .arg(output.lostPeriods);
    if (!output.missing.empty())
        text += "\n" + translated(output.missing);
    status_->setText(text);
}

} // namespace velmora
