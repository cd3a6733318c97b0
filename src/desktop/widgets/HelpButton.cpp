#include "desktop/widgets/HelpButton.h"

#include "desktop/widgets/icons.h"

#include <QDockWidget>
#include <QEvent>

namespace velmora {

namespace {

constexpr const char* kSectionProperty = "guideSection";
constexpr int kCornerGap = 2;

/// Keeps a help button beside another button of the same title bar.
class BesideKeeper : public QObject {
public:
    BesideKeeper(QWidget& button, QWidget& help) : QObject(&button), button_(button), help_(help)
    {
        button.installEventFilter(this);
        place();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
            place();
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void place()
    {
        const int distance = button_.width() + kCornerGap;
        help_.setGeometry(
            button_.geometry().translated(button_.isRightToLeft() ? distance : -distance, 0));
        help_.setVisible(button_.isVisibleTo(button_.parentWidget()));
    }

    QWidget& button_;
    QWidget& help_;
};

} // namespace

HelpButton::HelpButton(const char* section, QWidget& panel) : QToolButton(&panel), panel_(panel)
{
    setSection(section);
    setIcon(velmora::icon("help"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Help"));
    setToolTip(tr("Show what the guide says about this"));
}

void HelpButton::setSection(const char* section)
{
    section_ = section;
    panel_.setProperty(kSectionProperty, section_);
}

void addHelpButton(QDockWidget& dock, const char* section)
{
    auto* floating = dock.findChild<QAbstractButton*>("qt_dockwidget_floatbutton");
    new BesideKeeper(*floating, *new HelpButton(section, dock)); // owned by the dock
}

QString guideSectionOf(const QWidget* widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        const QVariant section = widget->property(kSectionProperty);
        if (section.isValid())
            return section.toString();
    }
    return {};
}

} // namespace velmora
