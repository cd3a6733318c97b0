#include "desktop/shell/ShortcutsPane.h"

#include "desktop/widgets/Commands.h"
#include "desktop/widgets/SearchField.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace velmora {

namespace {

enum ShortcutsColumn { kCommandColumn, kShortcutColumn };

constexpr int kShortcutActionRole = Qt::UserRole;

QAction* actionOf(const QTreeWidgetItem& item)
{
    return item.data(kCommandColumn, kShortcutActionRole).value<QAction*>();
}

/// Returns whether a shortcut would take a key from the keys that play notes.
bool playsNotes(const QKeySequence& shortcut)
{
    const QKeyCombination keys = shortcut[0];
    const int key = keys.key();
    return (keys.keyboardModifiers() & ~Qt::ShiftModifier) == 0 &&
           ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9));
}

/// Takes the first stroke as the shortcut and does not wait for further ones, which would be of no
/// use while playing.
class StrokeEdit : public QKeySequenceEdit {
protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QKeySequenceEdit::keyPressEvent(event);
        const QKeySequence stroke = keySequence();
        if (stroke.isEmpty())
            return;             // only Ctrl, Shift or Alt so far
        setKeySequence(stroke); // ends the recording
        emit editingFinished();
    }
};

} // namespace

ShortcutsPane::ShortcutsPane(Commands& commands)
    : commands_(commands), search_(new SearchField(tr("Find a command"))), list_(new QTreeWidget),
      editor_(new StrokeEdit), take_(new QPushButton(tr("Use It &Here"))),
      remove_(new QPushButton(tr("Remo&ve"))), problem_(new QLabel)
{
    list_->setHeaderLabels({tr("Command"), tr("Shortcut")});
    list_->header()->setSectionResizeMode(kCommandColumn, QHeaderView::ResizeToContents);
    list_->setRootIsDecorated(false);
    list_->setItemsExpandable(false);
    list_->setAccessibleName(tr("Commands"));
    editor_->setToolTip(tr("Press the new keys for the selected command"));
    editor_->findChild<QLineEdit*>()->setAccessibleName(tr("New shortcut"));
    auto* label = new QLabel(tr("&New shortcut:"));
    label->setBuddy(editor_);
    take_->setToolTip(tr("Take the shortcut from the other command"));
    remove_->setToolTip(tr("Leave the selected command without a shortcut"));
    auto* restore = new QPushButton(tr("Restore &Defaults"));
    restore->setObjectName("RestoreShortcuts");
    restore->setToolTip(tr("Give every command the shortcuts that it had at first"));
    problem_->setWordWrap(true);
    problem_->setTextFormat(Qt::PlainText);

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(editor_, 1);
    row->addWidget(take_);
    row->addWidget(remove_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(list_, 1);
    layout->addLayout(row);
    layout->addWidget(problem_);
    layout->addWidget(restore, 0, Qt::AlignRight);

    connect(search_, &QLineEdit::textChanged, this, &ShortcutsPane::filter);
    connect(search_, &SearchField::left, list_, [this] { list_->setFocus(Qt::TabFocusReason); });
    connect(list_, &QTreeWidget::currentItemChanged, this, &ShortcutsPane::select);
    connect(editor_, &QKeySequenceEdit::editingFinished, this, &ShortcutsPane::take);
    connect(take_, &QPushButton::clicked, this, [this] {
        const QKeySequence shortcut = editor_->keySequence();
        while (QAction* user = commands_.userOf(shortcut, *selected()))
            commands_.setShortcut(*user, {});
        assign(shortcut);
    });
    connect(remove_, &QPushButton::clicked, this, [this] { assign({}); });
    connect(restore, &QPushButton::clicked, &commands_, &Commands::restoreDefaults);
    connect(&commands_, &Commands::shortcutsChanged, this, &ShortcutsPane::showShortcuts);
    fill();
}

void ShortcutsPane::fill()
{
    QString group;
    for (const Commands::Command& command : commands_.all()) {
        if (command.group != group) {
            group = command.group;
            auto* title = new QTreeWidgetItem(list_, {group});
            title->setFlags(Qt::ItemIsEnabled);
            title->setFirstColumnSpanned(true);
        }
        QTreeWidgetItem* title = list_->topLevelItem(list_->topLevelItemCount() - 1);
        auto* item = new QTreeWidgetItem(title, {command.action->iconText()});
        item->setData(kCommandColumn, kShortcutActionRole, QVariant::fromValue(command.action));
    }
    list_->expandAll();
    showShortcuts();
    select();
}

void ShortcutsPane::showShortcuts()
{
    for (QTreeWidgetItemIterator item(list_); *item != nullptr; ++item)
        if (const QAction* action = actionOf(**item))
            (*item)->setText(kShortcutColumn, QKeySequence::listToString(action->shortcuts(),
                                                                         QKeySequence::NativeText));
    select();
}

void ShortcutsPane::filter()
{
    for (int i = 0; i < list_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *list_->topLevelItem(i);
        bool isAnyFound = false;
        for (int j = 0; j < group.childCount(); ++j) {
            QTreeWidgetItem& item = *group.child(j);
            const bool isFound =
                search_->finds(group.text(kCommandColumn) + ' ' + item.text(kCommandColumn) + ' ' +
                               item.text(kShortcutColumn));
            item.setHidden(!isFound);
            isAnyFound |= isFound;
        }
        group.setHidden(!isAnyFound);
    }
}

QAction* ShortcutsPane::selected() const
{
    return list_->currentItem() != nullptr ? actionOf(*list_->currentItem()) : nullptr;
}

void ShortcutsPane::select()
{
    const QAction* action = selected();
    const QSignalBlocker blocker(editor_);
    editor_->setKeySequence(action != nullptr ? action->shortcut() : QKeySequence());
    editor_->setEnabled(action != nullptr);
    remove_->setEnabled(action != nullptr && !action->shortcuts().isEmpty());
    take_->setEnabled(false);
    problem_->clear();
}

void ShortcutsPane::take()
{
    const QKeySequence shortcut = editor_->keySequence();
    if (shortcut.isEmpty() || selected() == nullptr || shortcut == selected()->shortcut())
        return;
    const QString text = shortcut.toString(QKeySequence::NativeText);
    const QAction* user = commands_.userOf(shortcut, *selected());
    take_->setEnabled(user != nullptr);
    if (playsNotes(shortcut)) {
        take_->setEnabled(false);
        problem_->setText(tr("%1 plays a note. Add Ctrl or Alt, or use a function key.").arg(text));
    } else if (user != nullptr) {
        problem_->setText(tr("%1 belongs to “%2”. Press other keys, or use it here instead.")
                              .arg(text, user->iconText()));
    } else {
        assign(shortcut);
    }
}

void ShortcutsPane::assign(const QKeySequence& shortcut)
{
    commands_.setShortcut(*selected(), shortcut); // `showShortcuts` follows
}

} // namespace velmora
