#include "desktop/roll/Lanes.h"

#include "desktop/roll/ControllerLane.h"
#include "desktop/roll/TimeLane.h"
#include "desktop/roll/VelocityLane.h"
#include "midi/messages.h"
#include "preferences/settings.h"

#include <QCoreApplication>
#include <QHBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kLaneKey = "lane";

} // namespace

QString laneText(LaneKind kind)
{
    switch (kind) {
    case LaneKind::None:
        return Lanes::tr("&No Lane");
    case LaneKind::Velocities:
        return Lanes::tr("&Velocity");
    case LaneKind::Time:
        return Lanes::tr("&Tempo and Signatures");
    case LaneKind::Pedal:
        return Lanes::tr("Sustain Pedal");
    case LaneKind::Wheel:
        return Lanes::tr("Pitch Wheel");
    case LaneKind::Modulation:
        return Lanes::tr("Modulation");
    case LaneKind::Expression:
        return Lanes::tr("Expression");
    }
    return {};
}

const char* laneName(LaneKind kind)
{
    switch (kind) {
    case LaneKind::None:
        return "view.noLane";
    case LaneKind::Velocities:
        return "view.velocities";
    case LaneKind::Time:
        return "view.time";
    case LaneKind::Pedal:
        return "view.pedal";
    case LaneKind::Wheel:
        return "view.wheel";
    case LaneKind::Modulation:
        return "view.modulation";
    case LaneKind::Expression:
        return "view.expression";
    }
    return "";
}

LaneKind preferredLane()
{
    const auto kind = static_cast<LaneKind>(preference(kLaneKey).toInt());
    return std::ranges::count(kLaneKinds, kind) > 0 ? kind : LaneKind::None;
}

void setPreferredLane(LaneKind kind)
{
    setPreference(kLaneKey, static_cast<int>(kind));
}

Lanes::Lanes(const SequenceView& view)
    : lanes_{{LaneKind::Velocities, new VelocityLane(view)}, {LaneKind::Time, new TimeLane(view)}}
{
    const auto addController = [&](LaneKind kind, int number) {
        lanes_[kind] = new ControllerLane(view, number, laneText(kind));
    };
    addController(LaneKind::Pedal, midi::kSustain);
    addController(LaneKind::Wheel, kPitchWheel);
    addController(LaneKind::Modulation, midi::kModulation);
    addController(LaneKind::Expression, midi::kExpression);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    for (const auto& [kind, lane] : lanes_)
        layout->addWidget(lane);
    show(preferredLane());
}

void Lanes::setEditor(SequenceEditor* editor)
{
    for (const auto& [kind, lane] : lanes_)
        lane->setEditor(editor);
}

void Lanes::show(LaneKind kind)
{
    shown_ = kind;
    for (const auto& [other, lane] : lanes_)
        lane->setVisible(other == kind);
    setVisible(kind != LaneKind::None);
}

} // namespace velmora
