#include "desktop/shell/StatusLine.h"

#include "app/AppDelegate.h"
#include "audio/outputDrivers.h"
#include "desktop/widgets/icons.h"
#include "preferences/settings.h"

#include <QLabel>
#include <QMessageBox>
#include <QToolButton>

namespace velmora {

namespace {

constexpr int kPartMargin = 6;

QString describe(const OutputStatus& output)
{
    const auto period = static_cast<double>(output.period);
    return StatusLine::tr("%1, %2 kHz, %3 ms")
        .arg(QString::fromStdString(driverTitle(output.driver)))
        .arg(output.rate / 1000.0, 0, 'g', 4)
        .arg(1000.0 * period / output.rate, 0, 'f', 1);
}

} // namespace

StatusLine::StatusLine(AppDelegate& application)
    : application_(application), instrument_(new QLabel), tuning_(new QLabel), output_(new QLabel),
      inputs_(new QLabel), noticesButton_(new QToolButton)
{
    noticesButton_->setIcon(icon("warning"));
    noticesButton_->setAutoRaise(true);
    noticesButton_->hide();
    connect(noticesButton_, &QToolButton::clicked, this, &StatusLine::showNotices);
    // A temporary message hides these widgets. The empty widget pushes the others to the right.
    addWidget(new QWidget, 1);
    addWidget(noticesButton_);
    instrument_->setToolTip(tr("The current instrument"));
    tuning_->setToolTip(tr("The current tuning"));
    output_->setToolTip(tr("The sound output: its driver, sample rate and period"));
    for (QLabel* label : {instrument_, tuning_, output_, inputs_}) {
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(kPartMargin, 0, kPartMargin, 0);
        addWidget(label);
    }
    connect(&application_, &AppDelegate::instrumentChanged, this, &StatusLine::showSound);
    connect(&application_, &AppDelegate::tuningChanged, this, &StatusLine::showSound);
    connect(&application_, &AppDelegate::outputChanged, this, &StatusLine::showOutput);
}

void StatusLine::showSound()
{
    instrument_->setText(QString::fromStdString(application_.instrumentName()));
    tuning_->setText(QString::fromStdString(application_.tuningName()));
}

void StatusLine::showDevices()
{
    showSound();
    showOutput();
    showMidiInputs();
    connect(&application_, &AppDelegate::midiDevicesChanged, this, &StatusLine::showMidiInputs);

    if (!application_.keepsDisplayAwake())
        addNotice(tr("The display may go to sleep while you play because there is no D-Bus session "
                     "bus."));
    if (!arePreferencesWritable())
        addNotice(tr("Changed preferences are lost when you quit because they cannot be saved."));
}

void StatusLine::showMidiInputs()
{
    QStringList names;
    for (const std::string& name : application_.midiInputs()->names())
        names += QString::fromStdString(name);
    inputs_->setText(names.isEmpty()     ? tr("No MIDI input")
                     : names.size() == 1 ? names.front()
                                         : tr("%1 MIDI inputs").arg(names.size()));
    inputs_->setToolTip(names.isEmpty() ? tr("A MIDI device is used as soon as it is connected")
                                        : names.join("\n"));
    const QString notice = tr("There is no MIDI device. Connect one, or play with the mouse.");
    if (names.isEmpty())
        addNotice(notice);
    else
        removeNotice(notice);
}

void StatusLine::showOutput()
{
    const OutputStatus output = application_.output()->status();
    if (output.driver.empty())
        return; // the next one is about to play
    removeNotice(missingOutput_);
    missingOutput_ = QString::fromStdString(output.missing);
    if (!missingOutput_.isEmpty()) {
        output_->setText(missingOutput_);
        addNotice(missingOutput_);
    } else {
        output_->setText(output.driver == "none" ? tr("No sound output") : describe(output));
    }
}

void StatusLine::addNotice(const QString& notice)
{
    if (notices_.contains(notice))
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
    noticesButton_->setVisible(!notices_.isEmpty());
}

void StatusLine::showNotices()
{
    QMessageBox::information(window(), tr("Notices"), notices_.join("\n\n"));
}

} // namespace velmora
