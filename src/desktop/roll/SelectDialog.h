#pragma once

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace velmora {

class NoteSpinBox;
class SequenceEditor;

/// Selects the notes of a voice, of some keys and of some velocities.
class SelectDialog : public QDialog {
    Q_OBJECT

public:
    /// The editor must outlive the dialog.
    SelectDialog(SequenceEditor& editor, QWidget* parent);

    void accept() override;

private:
    SequenceEditor& editor_;
    QComboBox* channel_;
    NoteSpinBox *lowest_, *highest_;
    QSpinBox *softest_, *loudest_;
};

} // namespace velmora
