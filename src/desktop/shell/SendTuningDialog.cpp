#include "desktop/shell/SendTuningDialog.h"

#include "app/TuningSender.h"
#include "desktop/widgets/messages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <stdexcept>

namespace velmora {

SendTuningDialog::SendTuningDialog(TuningSender& sender, QWidget* parent)
    : QDialog(parent), sender_(sender), outputs_(new QComboBox),
      keeps_(new QCheckBox(tr("&Keep sending when the tuning changes"))),
      send_(new QPushButton(tr("&Send"))), report_(new QLabel)
{
    setWindowTitle(tr("Send the Tuning"));
    for (const std::string& name : MidiOutput::names())
        outputs_->addItem(QString::fromStdString(name));
    outputs_->setCurrentIndex(
        std::max(0, outputs_->findText(QString::fromStdString(sender.output()))));
    outputs_->setPlaceholderText(tr("No MIDI output is connected"));
    keeps_->setChecked(sender.keepsSending());
    for (QWidget* control : std::initializer_list<QWidget*>{send_, keeps_})
        control->setEnabled(outputs_->count() > 0);
    report_->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->addButton(send_, QDialogButtonBox::ActionRole);
    send_->setDefault(true);
    auto* form = new QFormLayout(this);
    form->addRow(tr("MIDI &output:"), outputs_);
    form->addRow(keeps_);
    form->addRow(report_);
    form->addRow(buttons);
    connect(send_, &QPushButton::clicked, this, &SendTuningDialog::send);
    connect(keeps_, &QCheckBox::toggled, this, &SendTuningDialog::keepSending);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(&sender, &TuningSender::failed, this, [this](const std::string& error) {
        report_->setText(translated(error));
        keeps_->setChecked(false);
    });
}

void SendTuningDialog::send()
{
    try {
        sender_.send(outputs_->currentText().toStdString());
        report_->setText(tr("The tuning was sent to %1.").arg(outputs_->currentText()));
    } catch (const std::runtime_error& error) {
        report_->setText(translated(error.what()));
        keeps_->setChecked(false);
    }
}

void SendTuningDialog::keepSending(bool keeps)
{
    if (keeps)
        send();
    sender_.setKeepsSending(keeps && !sender_.output().empty());
}

} // namespace velmora
