#include "desktop/roll/RollActions.h"

#include "desktop/roll/Lanes.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/widgets/Commands.h"

#include <QActionGroup>
#include <QMenu>

namespace velmora {

RollActions::RollActions(Commands& commands) : lanes_(new QActionGroup(this))
{
    for (const LaneKind kind : kLaneKinds) {
        QAction* action = commands.add(laneName(kind), tr("View"), {laneText(kind), {}});
        action->setCheckable(true);
        action->setData(static_cast<int>(kind));
        lanes_->addAction(action);
        connect(action, &QAction::triggered, this, [this, kind] {
            setPreferredLane(kind);
            roll_->lanes().show(kind);
        });
    }
    setRoll(nullptr);
}

void RollActions::setRoll(SequenceScrollView* roll)
{
    roll_ = roll;
    const LaneKind shown = roll_ != nullptr ? roll_->lanes().shown() : LaneKind::None;
    lanes_->setEnabled(roll_ != nullptr);
    for (QAction* action : lanes_->actions())
        action->setChecked(action->data().toInt() == static_cast<int>(shown));
}

void RollActions::addTo(QMenu& view) const
{
    view.addMenu(tr("Lane"))->addActions(lanes_->actions());
}

} // namespace velmora
