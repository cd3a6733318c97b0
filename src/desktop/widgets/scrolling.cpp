#include "desktop/widgets/scrolling.h"

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace velmora {

namespace {

/// An event filter, owned by the widget that it is installed on.
class WheelFilter : public QObject {
public:
    explicit WheelFilter(QWidget& widget) : QObject(&widget), widget_(widget)
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || widget_.hasFocus())
            return false;
        event->ignore(); // the parent gets it next
        return true;
    }

private:
    QWidget& widget_;
};

/// Is never narrower than its content, which is only scrolled vertically.
class VerticalScrollArea : public QScrollArea {
public:
    QSize minimumSizeHint() const override
    {
        const int contentWidth = widget() != nullptr ? widget()->minimumSizeHint().width() : 0;
        return {contentWidth + verticalScrollBar()->sizeHint().width(),
                QScrollArea::minimumSizeHint().height()};
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry(); // its content may need another width now
        return QScrollArea::eventFilter(watched, event);
    }
};

} // namespace

void leaveWheelToScrolling(QWidget& widget)
{
    new WheelFilter(widget);
}

QScrollArea* newScrollArea(QWidget* content)
{
    auto* area = new VerticalScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

} // namespace velmora
