#pragma once

#include <QAccessibleWidget>

#include <unordered_map>

namespace velmora {

/// Presents what a view paints to screen readers: as a list, whose items exist only once a reader
/// has asked for them. An item stands for a place in the list and not for what is there.
class AccessibleList : public QAccessibleWidget {
public:
    explicit AccessibleList(QWidget& view);
    ~AccessibleList() override;

    virtual int itemCount() const = 0;

    /// The texts, the rectangle in the view and the state of the item at an index below
    /// `itemCount()`.
    virtual QString itemName(int index) const = 0;
    virtual QString itemDescription(int index) const = 0;
    virtual QRect itemRect(int index) const = 0;
    virtual QAccessible::State itemState(int index) const = 0;

    /// Returns the index of the item at a point of the view, or −1.
    virtual int itemAt(QPoint point) const = 0;

    int childCount() const override { return itemCount(); }
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    class Item;

    mutable std::unordered_map<int, QAccessible::Id> items_;
};

} // namespace velmora
