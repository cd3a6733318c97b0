#pragma once

#include "sequencer/noteChanges.h"

#include <QObject>

#include <functional>

class QAction;
class QKeySequence;
class QMenu;

namespace velmora {

class Commands;
class SequenceDocument;
class SequenceEditor;

/// The commands that change many notes of the current piece at once.
class EditingActions : public QObject {
    Q_OBJECT

public:
    /// Adds those that change the selected notes to a menu.
    EditingActions(Commands& commands, QMenu& selected);

    /// Sets the current piece and its editor, or none. A piece must be replaced before it is
    /// destroyed.
    void setTarget(SequenceDocument* document, SequenceEditor* editor);

    void addTo(QMenu& edit) const;

private:
    QAction* add(const char* id, const QString& text, const QKeySequence& shortcut,
                 std::function<void(SequenceEditor&)> change);
    void addSelected(QMenu& menu);
    void showTarget();
    void askHowToQuantise();
    void askWhatToSelect();

    Commands& commands_;
    SequenceDocument* document_ = nullptr;
    SequenceEditor* editor_ = nullptr;
    Quantisation quantisation_; ///< As chosen last.
    QAction *const select_, *const duplicate_, *const quantise_, *const divide_;
    QAction *const join_, *const connect_, *const sound_, *const dragSelects_;
};

} // namespace velmora
