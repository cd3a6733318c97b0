#include "desktop/instruments/InstrumentPanel.h"

#include "app/AppDelegate.h"
#include "app/programNames.h"
#include "app/sizeString.h"
#include "desktop/instruments/PlayingControls.h"
#include "desktop/widgets/LearnMenu.h"
#include "desktop/widgets/closeByKeys.h"

#include <QComboBox>
#include <QLabel>
#include <QPropertyAnimation>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolTip>
#include <QVBoxLayout>

#include <cmath>

namespace velmora {

namespace {

constexpr int kStopsLeft = 226;
constexpr int kStopWidth = 21;
constexpr int kSliderHeight = 50;
constexpr int kSliderTop = 5;
constexpr int kWidthWithoutStops = 240;
constexpr int kGrowMilliseconds = 120;

/// The value of a slider at volume 1.
constexpr int kFullVolume = 1000;

QString stopTitle(const Instrument& instrument, std::size_t stop)
{
    QString name = QString::fromStdString(instrument.stopName(stop));
    if (!name.isEmpty())
        return name;
    return instrument.numStops() > 1 ? InstrumentPanel::tr("Stop %1").arg(stop + 1)
                                     : InstrumentPanel::tr("Volume");
}

} // namespace

InstrumentPanel::InstrumentPanel(AppDelegate& application, QWidget* parent)
    : QWidget(parent, Qt::Tool), application_(application), programs_(new QComboBox),
      usage_(new QLabel), tunings_(new QComboBox), stops_(new QScrollArea)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    closeByKeys(*this);

    for (const char* name : kMIDIInstrumentNames)
        programs_->addItem(name);
    programs_->setAccessibleName(tr("Program"));
    programs_->setToolTip(tr("General MIDI program"));
    programs_->setMaxVisibleItems(24);
    connect(programs_, &QComboBox::activated, this,
            [this](int index) { application_.setMIDIProgram(static_cast<std::uint8_t>(index)); });

    usage_->setAccessibleName(tr("Memory use"));
    usage_->setToolTip(tr("Memory used by the samples of this instrument"));

    tunings_->setAccessibleName(tr("Tuning"));
    tunings_->setToolTip(tr("The tuning that you play in"));
    connect(tunings_, &QComboBox::activated, this,
            [this] { application_.selectTuning(tunings_->currentText().toStdString()); });

    auto* choices = new QWidget;
    choices->setFixedWidth(kStopsLeft);
    auto* column = new QVBoxLayout(choices);
    column->addWidget(programs_);
    column->addWidget(usage_);
    column->addWidget(tunings_);
    column->addWidget(new PlayingControls(application_.playing()));
    column->addStretch();
    for (QComboBox* menu : {programs_, tunings_})
        menu->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    stops_->setWidget(new QWidget);
    stops_->setFrameShape(QFrame::NoFrame);
    stops_->setFocusPolicy(Qt::NoFocus);
    stops_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    stops_->setMinimumWidth(kStopWidth);
    stops_->setMinimumHeight(kSliderTop + kSliderHeight +
                             stops_->horizontalScrollBar()->sizeHint().height());

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(choices);
    row->addWidget(stops_);
    usage_->hide(); // it takes the place of the programs and needs no room of its own
    setFixedHeight(sizeHint().height());

    connect(&application_, &AppDelegate::tuningsChanged, this, &InstrumentPanel::showTunings);
    connect(&application_, &AppDelegate::tuningChanged, this, &InstrumentPanel::showTunings);
    connect(&application_, &AppDelegate::instrumentChanged, this, &InstrumentPanel::showInstrument);
    connect(&application_, &AppDelegate::volumeMoved, this, &InstrumentPanel::showVolume);
    connect(&application_, &AppDelegate::programSelected, programs_, &QComboBox::setCurrentIndex);
}

void InstrumentPanel::showTunings()
{
    // If two tunings have the same name, the one that was chosen stays marked.
    int marked = tunings_->currentIndex();
    tunings_->clear();
    for (const std::string& name : application_.tuningNames())
        tunings_->addItem(QString::fromStdString(name));
    const QString current = QString::fromStdString(application_.tuningName());
    if (tunings_->itemText(marked) != current)
        marked = tunings_->findText(current);
    tunings_->setCurrentIndex(marked);
}

void InstrumentPanel::showInstrument()
{
    bool hasPrograms = false;
    std::uint64_t usage = 0;
    std::vector<std::pair<QString, float>> stops; // title and volume
    application_.player().with([&](const Instrument& instrument, const Temperament&) {
        hasPrograms = instrument.hasSubMenu();
        usage = static_cast<std::uint64_t>(instrument.usage);
        for (std::size_t i = 0; i < instrument.numStops(); ++i)
            stops.emplace_back(stopTitle(instrument, i), instrument.getVolume(i));
    });
    setWindowTitle(QString::fromStdString(application_.instrumentName()));
    programs_->setVisible(hasPrograms);
    if (hasPrograms)
        programs_->setCurrentIndex(application_.midiProgram());
    usage_->setVisible(!hasPrograms);
    // docs/decisions.md, 114
    usage_->setText(tr("Usage:  %1").arg(QString::fromStdString(sizeString(usage))));

    fitWidth(stops.size());
    makeSliders(stops.size());
    for (std::size_t i = 0; i < sliders_.size(); ++i) {
        sliders_[i]->setVisible(i < stops.size());
        if (i >= stops.size())
            continue;
        const auto& [title, volume] = stops[i];
        sliders_[i]->setToolTip(title);
        sliders_[i]->setAccessibleName(title);
        showVolume(i, volume);
    }
}

void InstrumentPanel::fitWidth(std::size_t stops)
{
    const int stopsWidth = kStopWidth * static_cast<int>(stops);
    stops_->widget()->resize(stopsWidth, kSliderTop + kSliderHeight);
    // Stops that do not fit on the screen can be scrolled into view.
    const QSize fitting(
        std::min(kWidthWithoutStops + stopsWidth, screen()->availableSize().width()), height());
    if (!isVisible()) {
        resize(fitting);
        return;
    }
    auto* growing = new QPropertyAnimation(this, "size", this);
    growing->setDuration(kGrowMilliseconds);
    growing->setEndValue(fitting);
    growing->start(QAbstractAnimation::DeleteWhenStopped);
}

void InstrumentPanel::makeSliders(std::size_t count)
{
    while (sliders_.size() < count) {
        const std::size_t stop = sliders_.size();
        auto* slider = new QSlider(Qt::Vertical, stops_->widget());
        slider->setGeometry(kStopWidth * static_cast<int>(stop), kSliderTop, kStopWidth,
                            kSliderHeight);
        slider->setRange(0, kFullVolume);
        slider->setPageStep(kFullVolume / 10);
        slider->setSingleStep(kFullVolume / 50);
        new LearnMenu(*slider, application_,
                      {{{LearnedAction::Kind::Volume, static_cast<std::uint16_t>(stop)}, {}}});
        connect(slider, &QSlider::valueChanged, this, [this, stop](int value) {
            application_.setVolumeOfStop(stop, static_cast<float>(value) / kFullVolume);
            showVolumeTip(stop);
        });
        sliders_.push_back(slider);
    }
}

void InstrumentPanel::showVolume(std::size_t stop, float volume)
{
    if (stop >= sliders_.size())
        return;
    const QSignalBlocker blocker(sliders_[stop]);
    sliders_[stop]->setValue(static_cast<int>(std::lround(volume * kFullVolume)));
}

void InstrumentPanel::showVolumeTip(std::size_t stop) const
{
    QSlider& slider = *sliders_[stop];
    const QString text = tr("%1: %2 %").arg(slider.accessibleName()).arg(slider.value() / 10);
    QToolTip::showText(slider.mapToGlobal(slider.rect().bottomLeft()), text, &slider);
}

} // namespace velmora
