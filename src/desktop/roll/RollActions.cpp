#include "desktop/roll/RollActions.h"

#include "desktop/roll/Lanes.h"
#include "desktop/roll/SequenceScrollView.h"
#include "desktop/widgets/Commands.h"
#include "preferences/Preferences.h"

#include <QActionGroup>
#include <QMenu>

#include <array>
#include <functional>

namespace velmora {

namespace {

/// The commands whose arrow keys point in the direction in which the roll moves. See
/// docs/decisions.md, 197.
constexpr std::array kDirected{
    "piece.next",       "piece.previous",  "edit.noteUp",      "edit.noteDown", "edit.noteLater",
    "edit.noteEarlier", "edit.noteLonger", "edit.noteShorter", "edit.octaveUp", "edit.octaveDown"};

/// Returns a shortcut with the arrow of the other axis.
QKeySequence mirrored(const QKeySequence& shortcut)
{
    const QKeyCombination keys = shortcut[0];
    const auto with = [&](Qt::Key key) {
        return QKeySequence(QKeyCombination(keys.keyboardModifiers(), key));
    };
    switch (keys.key()) {
    case Qt::Key_Up:
        return with(Qt::Key_Right);
    case Qt::Key_Down:
        return with(Qt::Key_Left);
    case Qt::Key_Right:
        return with(Qt::Key_Up);
    case Qt::Key_Left:
        return with(Qt::Key_Down);
    default:
        return shortcut;
    }
}

void mirrorArrows(Commands& commands)
{
    for (const char* id : kDirected) {
        const Commands::Command& command = commands.find(id);
        QList<QKeySequence> shortcuts;
        for (const QKeySequence& shortcut : command.defaultShortcuts)
            shortcuts += mirrored(shortcut);
        commands.setDefaults(*command.action, shortcuts);
    }
}

} // namespace

RollActions::RollActions(Commands& commands)
    : commands_(commands),
      across_(commands.add(
          "view.timeAcross", tr("View"),
          {tr("Time Runs Across"), tr("Let time run from left to right instead of upwards")})),
      lanes_(new QActionGroup(this)), zooms_(new QActionGroup(this))
{
    across_->setCheckable(true);
    across_->setChecked(getPrefBool("TimeRunsAcross"));
    if (across_->isChecked())
        mirrorArrows(commands);
    connect(across_, &QAction::toggled, this, &RollActions::turn);
    using View = SequenceScrollView;
    addZoom(commands, "view.zoomIn", "zoom-in", tr("&Zoom In"),
            QKeySequence::keyBindings(QKeySequence::ZoomIn), [](View& roll) { roll.zoomSteps(1); });
    addZoom(commands, "view.zoomOut", "zoom-out", tr("Zoom O&ut"),
            QKeySequence::keyBindings(QKeySequence::ZoomOut),
            [](View& roll) { roll.zoomSteps(-1); });
    addZoom(commands, "view.widerKeys", "zoom-in", tr("&Wider Keys"),
            {Qt::CTRL | Qt::ALT | Qt::Key_Plus}, [](View& roll) { roll.zoomKeys(1); });
    addZoom(commands, "view.narrowerKeys", "zoom-out", tr("N&arrower Keys"),
            {Qt::CTRL | Qt::ALT | Qt::Key_Minus}, [](View& roll) { roll.zoomKeys(-1); });
    addZoom(commands, "view.zoomToSelection", "zoom-in", tr("Zoom to Selection"),
            {Qt::CTRL | Qt::Key_9}, &View::zoomToSelection);
    addZoom(commands, "view.zoomToAll", "zoom-out", tr("Zoom to All Notes"), {Qt::CTRL | Qt::Key_0},
            &View::zoomToAll);

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

void RollActions::turn(bool isAcross)
{
    setPrefBool("TimeRunsAcross", isAcross);
    mirrorArrows(commands_);
    emit turned();
}

void RollActions::addZoom(Commands& commands, const char* id, const char* icon, const QString& text,
                          const QList<QKeySequence>& shortcuts,
                          const std::function<void(SequenceScrollView&)>& zoom)
{
    QAction* action = commands.add(id, tr("View"), {text, {}, icon}, shortcuts);
    zooms_->addAction(action);
    connect(action, &QAction::triggered, this, [this, zoom] { zoom(*roll_); });
}

void RollActions::setRoll(SequenceScrollView* roll)
{
    roll_ = roll;
    const LaneKind shown = roll_ != nullptr ? roll_->lanes().shown() : LaneKind::None;
    lanes_->setEnabled(roll_ != nullptr);
    zooms_->setEnabled(roll_ != nullptr);
    for (QAction* action : lanes_->actions())
        action->setChecked(action->data().toInt() == static_cast<int>(shown));
}

void RollActions::addTo(QMenu& view) const
{
    view.addActions(zooms_->actions());
    view.addAction(across_);
    view.addMenu(tr("Lane"))->addActions(lanes_->actions());
}

} // namespace velmora
