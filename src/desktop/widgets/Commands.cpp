#include "desktop/widgets/Commands.h"

#include "desktop/widgets/icons.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"

#include <QAction>
#include <QStringList>

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kTip = "tip";

/// The key under which the shortcuts that the user has chosen are stored.
std::string shortcutsKey(const QAction& action)
{
    return "shortcuts/" + action.objectName().toStdString();
}

void assign(QAction& action, const QList<QKeySequence>& shortcuts)
{
    action.setShortcuts(shortcuts);
    Commands::setTip(action, action.property(kTip).toString());
}

} // namespace

QAction* Commands::add(const char* id, const QString& group, const CommandText& text,
                       const QList<QKeySequence>& shortcuts)
{
    auto* action = new QAction(text.text, this);
    if (text.icon != nullptr)
        action->setIcon(icon(text.icon));
    action->setProperty(kTip, text.tip.isEmpty() ? action->iconText() : text.tip);
    add(id, group, *action, shortcuts);
    return action;
}

void Commands::add(const char* id, const QString& group, QAction& action,
                   const QList<QKeySequence>& shortcuts)
{
    action.setObjectName(id);
    action.setShortcutContext(Qt::ApplicationShortcut);
    if (!action.property(kTip).isValid())
        action.setProperty(kTip, action.iconText());
    commands_.push_back({&action, group, shortcuts});
    const QVariant chosen = preference(shortcutsKey(action));
    assign(action, chosen.isValid() ? QKeySequence::listFromString(chosen.toString()) : shortcuts);
}

void Commands::setShortcut(QAction& action, const QKeySequence& shortcut)
{
    const QList<QKeySequence> shortcuts =
        shortcut.isEmpty() ? QList<QKeySequence>() : QList<QKeySequence>{shortcut};
    setPreference(shortcutsKey(action), QKeySequence::listToString(shortcuts));
    assign(action, shortcuts);
    emit shortcutsChanged();
}

void Commands::setDefaults(QAction& action, const QList<QKeySequence>& shortcuts)
{
    const auto command = std::ranges::find(commands_, &action, &Command::action);
    command->defaultShortcuts = shortcuts;
    if (preference(shortcutsKey(action)).isValid())
        return;
    assign(action, shortcuts);
    emit shortcutsChanged();
}

const Commands::Command& Commands::find(const char* id) const
{
    return *std::ranges::find_if(commands_, [&](const Command& command) {
        return command.action->objectName() == QLatin1String(id);
    });
}

void Commands::restoreDefaults()
{
    for (const Command& command : commands_) {
        resetPref(shortcutsKey(*command.action));
        assign(*command.action, command.defaultShortcuts);
    }
    emit shortcutsChanged();
}

QAction* Commands::userOf(const QKeySequence& shortcut, const QAction& action) const
{
    const auto user = std::ranges::find_if(commands_, [&](const Command& command) {
        return command.action != &action && command.action->shortcuts().contains(shortcut);
    });
    return user == commands_.end() ? nullptr : user->action;
}

void Commands::setTip(QAction& action, const QString& tip)
{
    action.setProperty(kTip, tip);
    const QKeySequence shortcut = action.shortcut();
    action.setToolTip(shortcut.isEmpty()
                          ? tip
                          : tr("%1 (%2)").arg(tip, shortcut.toString(QKeySequence::NativeText)));
}

} // namespace velmora
