#include "desktop/shell/StatusLine.h"

#include "app/AppDelegate.h"
#include "app/tuningWarning.h"
#include "audio/outputDrivers.h"
#include "desktop/instruments/PlayingControls.h"
#include "desktop/shell/StatusItem.h"
#include "desktop/tuning/transposing.h"
#include "desktop/tuning/tuningText.h"
#include "desktop/widgets/deviceText.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/messages.h"
#include "platform/pathNames.h"
#include "preferences/settings.h"

#include <QMessageBox>
#include <QToolButton>

namespace velmora {

namespace {

QString describe(const OutputStatus& output)
{
    const auto period = static_cast<double>(output.period);
    return StatusLine::tr("%1, %L2 kHz, %L3 ms")
        .arg(QString::fromStdString(driverTitle(output.driver)))
        .arg(output.rate / 1000.0, 0, 'g', 4)
        .arg(1000.0 * period / output.rate, 0, 'f', 1);
}

} // namespace

StatusLine::StatusLine(AppDelegate& application)
    : application_(application), noticesButton_(new QToolButton),
      stopLoadingButton_(new QToolButton)
{
    noticesButton_->setIcon(icon("warning"));
    noticesButton_->setAutoRaise(true);
    noticesButton_->setFocusPolicy(Qt::TabFocus);
    noticesButton_->hide();
    connect(noticesButton_, &QToolButton::clicked, this, &StatusLine::showNotices);
    // A temporary message hides these widgets. The empty widget pushes the others to the right.
    addWidget(new QWidget, 1);
    addWidget(noticesButton_);
    instrument_ = addItem(tr("Instrument"), &StatusLine::instrumentClicked);
    tuning_ = addItem(tr("Tuning"), &StatusLine::tuningClicked);
    reading_ = addItem(tr("Reading of MIDI devices"), &StatusLine::midiClicked);
    output_ = addItem(tr("Sound output"), &StatusLine::soundClicked);
    inputs_ = addItem(tr("MIDI inputs"), &StatusLine::midiClicked);
    // It comes and goes, so it stands where it does not push the others aside.
    constexpr int kBeforeTheOthers = 2;
    loading_ = new StatusItem(tr("Loading"));
    insertWidget(kBeforeTheOthers, loading_);
    connect(loading_, &QToolButton::clicked, this, &StatusLine::instrumentClicked);
    stopLoadingButton_->setText(tr("Stop Loading"));
    stopLoadingButton_->setToolTip(tr("Leave out the stops that are not loaded yet"));
    stopLoadingButton_->setFocusPolicy(Qt::TabFocus);
    stopLoadingButton_->hide();
    insertWidget(kBeforeTheOthers + 1, stopLoadingButton_);
    connect(stopLoadingButton_, &QToolButton::clicked, &application_.loader(),
            &InstrumentLoader::stop);
    connect(&application_, &AppDelegate::instrumentChanged, this, &StatusLine::showSound);
    connect(&application_, &AppDelegate::programSelected, this, &StatusLine::showSound);
    connect(&application_.tunings(), &Tunings::changed, this, &StatusLine::showSound);
    connect(&application_.loader(), &InstrumentLoader::progressed, this, &StatusLine::showLoading);
    connect(&application_, &AppDelegate::outputChanged, this, &StatusLine::showOutput);
    connect(&application_.playing(), &PlayingOptions::changed, this, &StatusLine::showReading);
    connect(&application_.playing(), &PlayingOptions::changed, this, &StatusLine::showSound);
    showReading();
}

StatusItem* StatusLine::addItem(const QString& subject, void (StatusLine::*clicked)())
{
    auto* item = new StatusItem(subject);
    addWidget(item);
    connect(item, &QToolButton::clicked, this, clicked);
    return item;
}

void StatusLine::showLoading(const QString& title, int percent)
{
    const QString instrument = translatedTitle(title.toStdString());
    if (percent < 100)
        loading_->show(
            tr("%1 % loaded").arg(percent),
            tr("The stops of %1 that are loaded can be played; the others follow").arg(instrument));
    else
        loading_->show({}, {});
    showItem(*stopLoadingButton_, application_.loader().isLoading());
}

void StatusLine::showSound()
{
    const QString instrument = translatedTitle(application_.soundName());
    instrument_->show(instrument,
                      tr("Instrument: %1\nClick to show its programs or stops").arg(instrument));
    const auto [title, detail] = tuningText(application_, application_.tunings().name());
    const QString standing = standingTitle(title, application_.tunings());
    tuning_->show(standing, tr("Tuning: %1 (%2)\nClick to show all tunings").arg(standing, detail));
    removeNotice(outOfTune_);
    outOfTune_ = translated(tuningWarning(application_));
    addNotice(outOfTune_);
}

void StatusLine::showReading()
{
    const PlayingSettings& settings = application_.playing().settings();
    const int semitones = settings.transposition;
    if (settings.isPlain)
        reading_->show(tr("Plain reading"),
                       tr("MIDI devices are read plainly: no pedals, no touch, no transposition"));
    else if (semitones != 0)
        reading_->show(tr("Transposed %1").arg(transpositionText(semitones)),
                       tr("MIDI keyboards sound %1 semitones away from their keys")
                           .arg(transpositionText(semitones)));
    else
        reading_->hide();
}

void StatusLine::showDevices()
{
    showSound();
    showOutput();
    showMidiInputs();
    connect(&application_, &AppDelegate::midiDevicesChanged, this, &StatusLine::showMidiInputs);

    if (!application_.keepsDisplayAwake())
        addNotice(tr("The display may go to sleep while you play because there is no D-Bus session "
                     "bus. Start Velmora from the desktop, or with dbus-run-session."));
    if (!arePreferencesWritable())
        addNotice(tr("What you change in the preferences, and what is open, is forgotten when you "
                     "quit because nothing can be written to %1. Make that folder writable.")
                      .arg(textOf(settingsFolder())));
}

void StatusLine::showMidiInputs()
{
    QStringList names, texts;
    for (const std::string& name : application_.midiInputs()->names()) {
        names += QString::fromStdString(name);
        texts += deviceText(name);
    }
    const QString notice = tr("There is no MIDI device. Connect one, or play with the mouse.");
    if (names.isEmpty()) {
        inputs_->show(tr("No MIDI input"), tr("A MIDI device is used as soon as it is connected"),
                      StatusItem::Kind::Missing);
        addNotice(notice);
        return;
    }
    const auto count = static_cast<int>(names.size());
    inputs_->show(count == 1 ? texts.front() : tr("%n MIDI input(s)", nullptr, count),
                  tr("MIDI devices:\n%1").arg(names.join("\n")));
    removeNotice(notice);
}

void StatusLine::showOutput()
{
    const OutputStatus output = application_.output()->status();
    if (output.driver.empty())
        return; // the next one is about to play
    removeNotice(missingOutput_);
    missingOutput_ = translated(output.missing);
    addNotice(missingOutput_);
    const bool isMissing = !missingOutput_.isEmpty();
    output_->show(output.driver == "none" ? tr("No sound output") : describe(output),
                  isMissing ? missingOutput_
                            : tr("The sound output: its driver, sample rate and period"),
                  isMissing ? StatusItem::Kind::Missing : StatusItem::Kind::Normal);
}

void StatusLine::addNotice(const QString& notice)
{
    if (notice.isEmpty() || notices_.contains(notice))
        return;
    notices_ += notice;
    updateNotices();
}

void StatusLine::removeNotice(const QString& notice)
{
    notices_.removeAll(notice);
    updateNotices();
}

void StatusLine::updateNotices()
{
    noticesButton_->setText(QString::number(notices_.size()));
    noticesButton_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    noticesButton_->setToolTip(notices_.join("\n"));
    noticesButton_->setAccessibleName(tr("Notices: %1").arg(notices_.size()));
    showItem(*noticesButton_, !notices_.isEmpty());
}

void StatusLine::showNotices()
{
    QMessageBox::information(window(), tr("Notices"), notices_.join("\n\n"));
}

} // namespace velmora
