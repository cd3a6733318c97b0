#include "desktop/widgets/AccessibleList.h"

#include <QWidget>

namespace velmora {

/// One place of a list.
class AccessibleList::Item : public QAccessibleInterface {
public:
    Item(const AccessibleList& list, int index) : list_(list), index_(index) {}

    int index() const { return index_; }

    bool isValid() const override { return list_.isValid() && index_ < list_.itemCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return list_.window(); }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(list_.widget());
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        switch (kind) {
        case QAccessible::Name:
            return list_.itemName(index_);
        case QAccessible::Description:
            return list_.itemDescription(index_);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect rect = list_.itemRect(index_);
        return {list_.widget()->mapToGlobal(rect.topLeft()), rect.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (isValid())
            state = list_.itemState(index_);
        else
            state.invalid = true;
        return state;
    }

private:
    const AccessibleList& list_;
    int index_;
};

AccessibleList::AccessibleList(QWidget& view) : QAccessibleWidget(&view, QAccessible::List) {}

AccessibleList::~AccessibleList()
{
    for (const auto& [index, id] : items_)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessibleList::child(int index) const
{
    if (index < 0 || index >= itemCount())
        return nullptr;
    const auto [entry, isNew] = items_.try_emplace(index);
    if (isNew)
        entry->second = QAccessible::registerAccessibleInterface(new Item(*this, index));
    return QAccessible::accessibleInterface(entry->second);
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const
{
    return child(itemAt(widget()->mapFromGlobal(QPoint(x, y))));
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* item = dynamic_cast<const Item*>(child);
    return item != nullptr ? item->index() : -1;
}

} // namespace velmora
