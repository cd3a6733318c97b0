#pragma once

#include "sequencer/fitToGrid.h"

#include <QDialog>

class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace velmora {

class SequenceDocument;

/// Shows the beats that were found in a piece over its notes. The user corrects them before the
/// piece is moved to them.
class FitDialog : public QDialog {
    Q_OBJECT

public:
    /// The document must outlive the dialog.
    FitDialog(SequenceDocument& document, const FoundBeats& beats, QWidget* parent);

    void accept() override;

private:
    class Picture;

    void addFields(QFormLayout& form);
    void scaleTempo(double factor);
    void showBeats();

    SequenceDocument& document_;
    FoundBeats beats_;
    Picture* picture_;
    QLabel* tempo_;
    QPushButton *half_, *twice_;
    QSpinBox *count_, *first_;
};

/// Finds the beats of a piece and shows the dialog, or says why there are none.
void askToFit(SequenceDocument& document, QWidget* parent);

} // namespace velmora
