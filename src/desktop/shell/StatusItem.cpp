#include "desktop/shell/StatusItem.h"

#include "desktop/widgets/icons.h"

namespace velmora {

namespace {

/// The longest text that is shown whole, in letters of average width.
constexpr int kMostLetters = 28;

} // namespace

StatusItem::StatusItem(const QString& subject)
{
    setAccessibleName(subject);
    hide(); // until it shows something
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    hide(); // until it has a text
}

void StatusItem::show(const QString& text, const QString& help, Kind kind)
{
    QFont weight = font();
    weight.setBold(kind == Kind::Missing);
    setFont(weight);
    setIcon(kind == Kind::Missing ? velmora::icon("warning") : QIcon());
    const int room = fontMetrics().averageCharWidth() * kMostLetters;
    setText(fontMetrics().elidedText(text, Qt::ElideRight, room).replace("&", "&&"));
    setToolTip(help);
    setVisible(!text.isEmpty());
    if (!text.isEmpty())
        setAccessibleName(text);
}

} // namespace velmora
