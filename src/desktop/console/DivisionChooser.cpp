#include "desktop/console/DivisionChooser.h"

#include "app/AppDelegate.h"
#include "desktop/widgets/scrolling.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace velmora {

DivisionChooser::DivisionChooser(AppDelegate& application)
    : application_(application), box_(new QComboBox)
{
    auto* label = new QLabel(tr("This &keyboard plays:"));
    label->setBuddy(box_);
    box_->setFocusPolicy(Qt::TabFocus);
    box_->setToolTip(tr("The manual that the keyboard on the screen and the letter keys play"));
    leaveWheelToScrolling(*box_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->addStretch();
    row->addWidget(label);
    row->addWidget(box_);
    row->addStretch();
    OrganConsole& organ = application_.organ();
    connect(box_, &QComboBox::activated, &organ, [&organ](int division) {
        organ.setKeyboardDivision(static_cast<std::size_t>(division));
    });
    connect(&organ, &OrganConsole::changed, this, &DivisionChooser::showDivisions);
    connect(&organ, &OrganConsole::divisionsChanged, this, &DivisionChooser::showDivisions);
    showDivisions();
}

void DivisionChooser::showDivisions()
{
    OrganConsole& organ = application_.organ();
    box_->clear();
    if (organ.definition() != nullptr)
        for (const ConsoleDefinition::Division& division : organ.definition()->divisions)
            box_->addItem(QString::fromStdString(division.name));
    box_->setCurrentIndex(static_cast<int>(organ.keyboardDivision()));
    setVisible(box_->count() > 1);
}

} // namespace velmora
