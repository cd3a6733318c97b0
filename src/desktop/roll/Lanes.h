#pragma once

#include <QWidget>

#include <array>
#include <map>

namespace velmora {

class Lane;
class SequenceEditor;
class SequenceView;

/// What can be shown beside the piano roll.
enum class LaneKind : int { None, Velocities, Time, Pedal, Wheel, Modulation, Expression };

/// The kinds in the order of the menu.
inline constexpr std::array kLaneKinds{
    LaneKind::None,  LaneKind::Velocities, LaneKind::Time,      LaneKind::Pedal,
    LaneKind::Wheel, LaneKind::Modulation, LaneKind::Expression};

/// The title of a lane in the menu, with a mnemonic.
QString laneText(LaneKind kind);

/// The name of a lane in the identities of commands.
const char* laneName(LaneKind kind);

/// The lane that new rolls show, as the user chose it last.
LaneKind preferredLane();
void setPreferredLane(LaneKind kind);

/// The strip beside the piano roll that shows one of several lanes, or nothing.
class Lanes : public QWidget {
    Q_OBJECT

public:
    /// The view must outlive the strip.
    explicit Lanes(const SequenceView& view);

    void setEditor(SequenceEditor* editor);

    LaneKind shown() const { return shown_; }
    void show(LaneKind kind);

private:
    std::map<LaneKind, Lane*> lanes_;
    LaneKind shown_ = LaneKind::None;
};

} // namespace velmora
