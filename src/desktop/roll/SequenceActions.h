#pragma once

#include "desktop/roll/RecordingActions.h"
#include "desktop/roll/TimeActions.h"

#include <QObject>
#include <QUndoGroup>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;

namespace velmora {

class Commands;
class EditingActions;
class RollActions;
class SequenceDocument;
class SequenceEditor;
class SequenceScrollView;
class UndoHistory;
struct Note;

/// The commands that act on the current piece.
class SequenceActions : public QObject {
    Q_OBJECT

public:
    explicit SequenceActions(Commands& commands);
    ~SequenceActions() override;

    /// A piece, the editor of its notes, and its roll.
    struct Target {
        SequenceDocument* document = nullptr;
        SequenceEditor* editor = nullptr;
        SequenceScrollView* roll = nullptr;
    };

    /// Makes a piece the current one, or none if the pointers are null. A piece must be replaced
    /// before it is destroyed.
    void setTarget(const Target& target);

    QAction *const record, *const play, *const loop, *const snap;

    RecordingActions& recording() { return recording_; }
    const TimeActions& time() const { return time_; }

    void addEditing(QMenu& edit) const;
    void addTransport(QMenu& sequence) const;
    void addZoom(QMenu& view) const;

signals:
    /// The user wants to record, and there is no piece.
    void pieceWanted();

    /// Time runs in another direction in all rolls.
    void rollTurned();

private:
    QAction* add(const char* id, const char* icon, const QString& text,
                 const QList<QKeySequence>& shortcuts);

    /// Adds a command that has the same effect as a key in the piano roll.
    QAction* addKey(const char* id, const QString& text, const QList<QKeySequence>& shortcuts,
                    int key, Qt::KeyboardModifiers modifiers = {});
    void addCorrection(const char* id, const QString& text, const QKeySequence& shortcut,
                       std::function<void(SequenceEditor&)> correct);
    void makeCorrections();
    void makeChannels();
    void connectCommands();
    void connectTarget();
    void showMode();
    void showOptions();
    void showSelection();
    void showDeselect(); ///< It also ends a count-in.
    void showClipboard();
    void showHistory();
    void copyNotes(const std::vector<Note>& notes);
    void pasteNotes();

    Commands& commands_;
    RecordingActions recording_;
    TimeActions time_;
    Target target_;
    QUndoGroup undoStacks_;
    std::unique_ptr<UndoHistory> historyWindow_; ///< Null until it was wanted.
    QAction *const undo_, *const redo_, *const history_, *const cut_, *const copy_, *const paste_;
    QAction *const delete_, *const selectAll_, *const deselect_;
    QAction *const nextNote_, *const previousNote_;
    QAction *const start_, *const end_, *const previous_, *const next_;
    const std::unique_ptr<QMenu> corrections_; ///< What can be done to the selected notes.
    const std::unique_ptr<EditingActions> editing_;
    std::unique_ptr<RollActions> roll_; ///< Made after the commands that it turns.
    const std::unique_ptr<QMenu> channelMenu_;
    QActionGroup* const channels_;
};

} // namespace velmora
