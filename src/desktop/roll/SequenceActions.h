#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;

namespace velmora {

class SequenceDocument;
class SequenceEditor;
struct Note;

/// The actions in the menus and the toolbar of a sequence window. The menus also show the keys that
/// the piano roll handles itself; these are not shortcuts of the actions.
class SequenceActions : public QObject {
    Q_OBJECT

public:
    /// The document and the editor must outlive the actions.
    SequenceActions(SequenceDocument& document, SequenceEditor& editor);
    ~SequenceActions() override;

    QAction *const record, *const play, *const loop, *const snap;
    QAction *const undo, *const redo, *const cut, *const copy, *const paste;

    void addEditing(QMenu& edit) const;
    void addTransport(QMenu& sequence) const;

private:
    void connectEditing();
    void connectTransport();
    void makeChannels();
    void showMode();
    void showOptions();
    void showSelection();
    void showClipboard();
    void copyNotes(const std::vector<Note>& notes);
    void pasteNotes();

    /// Creates an action with the same effect as a key in the piano roll.
    QAction* keyAction(const QString& text, int key, Qt::KeyboardModifiers modifiers = {});

    SequenceDocument& document_;
    SequenceEditor& editor_;
    QAction *const delete_, *const selectAll_, *const deselect_;
    QAction *const start_, *const previous_, *const next_;
    const std::unique_ptr<QMenu> channelMenu_;
    QActionGroup* const channels_;
};

} // namespace velmora
