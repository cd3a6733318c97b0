#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace velmora {

class TuningSender;

/// Sends the current tuning to a MIDI output that the user chooses.
class SendTuningDialog : public QDialog {
    Q_OBJECT

public:
    /// The sender must outlive the dialog, and goes on sending when it is closed.
    SendTuningDialog(TuningSender& sender, QWidget* parent);

private:
    void send();
    void keepSending(bool keeps);

    TuningSender& sender_;
    QComboBox* outputs_;
    QCheckBox* keeps_;
    QPushButton* send_;
    QLabel* report_;
};

} // namespace velmora
