#include "desktop/widgets/GroupedList.h"

#include "desktop/widgets/SearchField.h"

#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr int kLeastListHeight = 120;
constexpr int kPositionRole = Qt::UserRole;

} // namespace

GroupedList::GroupedList(const QString& hint, const QString& name)
    : search_(new SearchField(hint)), tree_(new QTreeWidget)
{
    tree_->setHeaderHidden(true);
    tree_->setRootIsDecorated(false);
    tree_->setItemsExpandable(false);
    tree_->setIndentation(tree_->indentation() / 2);
    tree_->setFocusPolicy(Qt::TabFocus);
    tree_->setMinimumHeight(kLeastListHeight);
    tree_->setAccessibleName(name);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(search_);
    layout->addWidget(tree_, 1);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &GroupedList::choose);
    connect(tree_, &QTreeWidget::itemPressed, this, &GroupedList::leaveSearch);
    connect(search_, &QLineEdit::textChanged, this, &GroupedList::filter);
    connect(search_, &QLineEdit::returnPressed, this, &GroupedList::chooseFirstFound);
    connect(search_, &SearchField::left, this, [this] {
        tree_->setFocus(Qt::TabFocusReason);
        if (tree_->currentItem() == nullptr || tree_->currentItem()->isHidden())
            chooseFirstFound();
    });
}

void GroupedList::showEntries(std::vector<Entry> entries)
{
    const QSignalBlocker blocker(tree_);
    if (entries == entries_) {
        tree_->setCurrentItem(nullptr);
        return;
    }
    entries_ = std::move(entries);
    tree_->clear();
    items_.clear();
    QFont bold = tree_->font();
    bold.setBold(true);
    QTreeWidgetItem* group = nullptr;
    for (const Entry& entry : entries_) {
        if (group == nullptr || group->text(0) != entry.group) {
            const auto found = tree_->findItems(entry.group, Qt::MatchExactly);
            group = found.isEmpty() ? new QTreeWidgetItem(tree_, {entry.group}) : found.first();
            group->setFlags(Qt::ItemIsEnabled);
            group->setFont(0, bold);
        }
        auto* item = new QTreeWidgetItem(group, {entry.text});
        item->setData(0, kPositionRole, static_cast<int>(items_.size()));
        item->setToolTip(0, entry.toolTip);
        items_.push_back(item);
    }
    tree_->expandAll();
    search_->clear();
}

void GroupedList::showCurrent(std::size_t position)
{
    const QSignalBlocker blocker(tree_);
    tree_->setCurrentItem(position < items_.size() ? items_[position] : nullptr);
}

void GroupedList::choose(const QTreeWidgetItem* item)
{
    if (item != nullptr && item->parent() != nullptr)
        emit chosen(static_cast<std::size_t>(item->data(0, kPositionRole).toInt()));
}

void GroupedList::filter()
{
    for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
        QTreeWidgetItem& group = *tree_->topLevelItem(i);
        bool isAnyFound = false;
        for (int j = 0; j < group.childCount(); ++j) {
            const bool isFound = search_->finds(group.text(0) + ' ' + group.child(j)->text(0));
            group.child(j)->setHidden(!isFound);
            isAnyFound |= isFound;
        }
        group.setHidden(!isAnyFound);
    }
    if (tree_->currentItem() != nullptr)
        tree_->scrollToItem(tree_->currentItem());
}

void GroupedList::chooseFirstFound()
{
    const auto isFound = [](const QTreeWidgetItem* item) { return !item->isHidden(); };
    auto found = std::ranges::find_if(items_, [&](const QTreeWidgetItem* item) {
        return isFound(item) && search_->begins(item->text(0));
    });
    if (found == items_.end())
        found = std::ranges::find_if(items_, isFound);
    if (found == items_.end())
        return;
    tree_->setCurrentItem(*found);
    leaveSearch();
}

void GroupedList::leaveSearch()
{
    if (search_->hasFocus())
        tree_->setFocus(Qt::OtherFocusReason);
}

} // namespace velmora
