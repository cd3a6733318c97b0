#include "desktop/shell/StatusItem.h"

#include "desktop/widgets/icons.h"

#include <QStatusBar>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// The longest text that is shown whole, and what is left of it in a narrow window, in letters of
/// average width.
constexpr int kMostLetters = 44, kLeastLetters = 6;

} // namespace

void showItem(QWidget& item, bool isShown)
{
    const auto* bar = qobject_cast<const QStatusBar*>(item.parentWidget());
    if (isShown && bar != nullptr && !bar->currentMessage().isEmpty())
        item.setAttribute(Qt::WA_WState_ExplicitShowHide, false); // as the bar marks what it hides
    else
        item.setVisible(isShown);
}

StatusItem::StatusItem(const QString& subject)
{
    setAccessibleName(subject);
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
    cutOff(); // the item may keep its width
    updateGeometry();
    setToolTip(help);
    showItem(*this, !text.isEmpty());
    if (!text.isEmpty())
        setAccessibleName(text);
}

QSize StatusItem::sizeWith(int letters) const
{
    // Rounded up: a text that needs a fraction of a pixel more than it has is cut off.
    const auto whole = static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text_)));
    const int wanted = std::min(whole, fontMetrics().averageCharWidth() * letters);
    const int present = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
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
    cutOff();
}

void StatusItem::cutOff()
{
    const int borders = sizeWith(0).width();
    setText(fontMetrics().elidedText(text_, Qt::ElideRight, width() - borders).replace("&", "&&"));
}

} // namespace velmora
