#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QString>

#include <vector>

class QAction;

namespace velmora {

/// What defines a command.
struct CommandText {
    QString text;               ///< As in a menu, with a mnemonic.
    QString tip;                ///< What it does; the text if it is empty.
    const char* icon = nullptr; ///< The name of an icon of the program.
};

/// All commands of the program. Each is one action, which menus, toolbars and the command palette
/// share. Its shortcuts work in every window, and the user can change them.
class Commands : public QObject {
    Q_OBJECT

public:
    struct Command {
        QAction* action;
        QString group; ///< For the user, such as "Edit".
        QList<QKeySequence> defaultShortcuts;
    };

    /// Defines a command and gives it the shortcuts that the user has chosen, or else `shortcuts`.
    /// `id` names it in the preferences. The commands own the action.
    QAction* add(const char* id, const QString& group, const CommandText& text,
                 const QList<QKeySequence>& shortcuts = {});

    /// Defines a command as an existing action, which has its text, its icon and an owner.
    void add(const char* id, const QString& group, QAction& action,
             const QList<QKeySequence>& shortcuts);

    /// All commands in the order in which they were defined.
    const std::vector<Command>& all() const { return commands_; }

    /// Gives a command one shortcut instead of all it had, or none if `shortcut` is empty. Stores
    /// the choice.
    void setShortcut(QAction& action, const QKeySequence& shortcut);

    /// Gives a command other default shortcuts, which it also takes unless the user has chosen
    /// some.
    void setDefaults(QAction& action, const QList<QKeySequence>& shortcuts);

    /// Gives every command its default shortcuts, and forgets the choices of the user.
    void restoreDefaults();

    /// Returns the command with an identity, which must exist.
    const Command& find(const char* id) const;

    /// Returns the first command other than `action` that has a shortcut; null if none has.
    QAction* userOf(const QKeySequence& shortcut, const QAction& action) const;

    /// Sets the tooltip of a command: `tip` and its shortcut.
    static void setTip(QAction& action, const QString& tip);

signals:
    /// A shortcut has changed.
    void shortcutsChanged();

private:
    std::vector<Command> commands_;
};

} // namespace velmora
