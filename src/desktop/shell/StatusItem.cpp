#include "desktop/shell/StatusItem.h"

#include "desktop/widgets/icons.h"

#include <algorithm>

namespace velmora {

namespace {

/// The longest text that is shown whole, and what is left of it in a narrow window, in letters of
/// average width.
constexpr int kMostLetters = 28, kLeastLetters = 6;

} // namespace

StatusItem::StatusItem(const QString& subject)
{
    setAccessibleName(subject);
    hide(); // until it shows something
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    hide(); // until it has a text
}

void StatusItem::show(const QString& text, const QString& help, Kind kind)
{
    QFont weight = font();
    weight.setBold(kind == Kind::Missing);
    setFont(weight);
    setIcon(kind == Kind::Missing ? velmora::icon("warning") : QIcon());
    text_ = text;
    setText(QString(text).replace("&", "&&"));
    updateGeometry();
    setToolTip(help);
    setVisible(!text.isEmpty());
    if (!text.isEmpty())
        setAccessibleName(text);
}

QSize StatusItem::sizeWith(int letters) const
{
    const int whole = fontMetrics().horizontalAdvance(text_);
    const int wanted = std::min(whole, fontMetrics().averageCharWidth() * letters);
    const int present = fontMetrics().horizontalAdvance(text());
    const QSize size = QToolButton::sizeHint();
    return {size.width() - present + wanted, size.height()};
}

QSize StatusItem::sizeHint() const
{
    return sizeWith(kMostLetters);
}

QSize StatusItem::minimumSizeHint() const
{
    return sizeWith(kLeastLetters);
}

void StatusItem::resizeEvent(QResizeEvent* event)
{
    QToolButton::resizeEvent(event);
    const int borders = sizeWith(0).width();
    setText(fontMetrics().elidedText(text_, Qt::ElideRight, width() - borders).replace("&", "&&"));
}

} // namespace velmora
