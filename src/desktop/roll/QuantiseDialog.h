#pragma once

#include "sequencer/NotePreview.h"
#include "sequencer/noteChanges.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace velmora {

class SequenceEditor;

/// Asks how notes are moved to the grid, and shows in the roll what becomes of them.
class QuantiseDialog : public QDialog {
    Q_OBJECT

public:
    /// Begins with a choice. The document and its editor must outlive the dialog.
    QuantiseDialog(SequenceDocument& document, SequenceEditor& editor, const Quantisation& choice,
                   QWidget* parent);

    Quantisation choice() const;

    /// Puts the notes back, and then quantises them if the user wants it.
    void done(int result) override;

private:
    void preview();

    SequenceDocument& document_;
    SequenceEditor& editor_;
    const std::vector<Note> notes_; ///< Those to be moved, as they were.
    NotePreview preview_;
    QComboBox* unit_;
    QSpinBox *strength_, *swing_;
    QCheckBox* ends_;
};

} // namespace velmora
