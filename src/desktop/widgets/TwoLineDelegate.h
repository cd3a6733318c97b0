#pragma once

#include <QStyledItemDelegate>

namespace velmora {

/// Paints items whose text has two lines, the second one smaller and paler than the first.
class TwoLineDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace velmora
