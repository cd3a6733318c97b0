#include "desktop/widgets/TwoLineDelegate.h"

#include <QApplication>
#include <QPainter>

namespace velmora {

namespace {

constexpr int kMargin = 4;
constexpr double kDetailScale = 0.9;
constexpr float kDetailOpacity = 0.75F;

QFont detailFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * kDetailScale);
    font.setBold(false);
    return font;
}

} // namespace

void TwoLineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStringList lines = index.data().toString().split('\n');
    item.text.clear(); // only the background is left
    const QWidget* view = item.widget;
    (view != nullptr ? view->style() : QApplication::style())
        ->drawControl(QStyle::CE_ItemViewItem, &item, painter, view);

    const auto group = (item.state & QStyle::State_Enabled) == 0  ? QPalette::Disabled
                       : (item.state & QStyle::State_Active) != 0 ? QPalette::Active
                                                                  : QPalette::Inactive;
    const auto role =
        (item.state & QStyle::State_Selected) != 0 ? QPalette::HighlightedText : QPalette::Text;
    QColor color = item.palette.color(group, role);
    QRect room = item.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter->save();
    QFont font = item.font;
    for (const QString& line : lines) {
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(color);
        painter->drawText(room, Qt::AlignLeft | Qt::AlignTop,
                          metrics.elidedText(line, Qt::ElideRight, room.width()));
        room.setTop(room.top() + metrics.height());
        font = detailFont(item.font);
        color.setAlphaF(kDetailOpacity);
    }
    painter->restore();
}

QSize TwoLineDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool hasDetail = index.data().toString().contains('\n');
    const int details = hasDetail ? QFontMetrics(detailFont(option.font)).height() : 0;
    return {0, option.fontMetrics.height() + details + 2 * kMargin};
}

} // namespace velmora
