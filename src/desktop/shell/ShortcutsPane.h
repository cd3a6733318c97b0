#pragma once

#include <QWidget>

class QAction;
class QKeySequenceEdit;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace velmora {

class Commands;
class SearchField;

/// The pane of the preferences for the shortcuts of all commands. Each change takes effect at once
/// and is stored.
class ShortcutsPane : public QWidget {
    Q_OBJECT

public:
    explicit ShortcutsPane(Commands& commands);

private:
    void fill();
    void showShortcuts();
    void filter();
    void select();
    void take();
    void assign(const QKeySequence& shortcut);

    /// The selected command; null if none is.
    QAction* selected() const;

    Commands& commands_;
    SearchField* search_;
    QTreeWidget* list_;
    QKeySequenceEdit* editor_;
    QPushButton *take_, *remove_;
    QLabel* problem_;
};

} // namespace velmora
