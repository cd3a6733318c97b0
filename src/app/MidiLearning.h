#pragma once

#include "midi/LearnedControls.h"

#include <QObject>

#include <optional>
#include <utility>
#include <vector>

namespace velmora {

/// Teaches controls of the MIDI devices to do an action, and remembers that in the preferences.
/// Each action has at most one control. Main thread only, except the table of controls.
class MidiLearning : public QObject {
    Q_OBJECT

public:
    /// Reads the preferences.
    MidiLearning();

    /// The table that the MIDI receive threads read.
    LearnedControls& controls() { return controls_; }

    /// The control that has learned an action.
    std::optional<MidiControl> getControl(LearnedAction action) const;

    /// Waits until a control is used and lets it learn an action, instead of the one that has been
    /// waiting. The action's former control then forgets it.
    void listen(LearnedAction action);

    /// Ends the waiting without learning anything.
    void cancel();

    /// Lets the control of an action have its usual meaning again.
    void forget(LearnedAction action);

    /// Remembers a control that a receive thread has bound.
    void keep(MidiControl control);

signals:
    /// The waiting has ended: a control has learned the action, or it was cancelled.
    void ended();

private:
    using Binding = std::pair<MidiControl, LearnedAction>;

    void save() const;

    bool isWaiting_ = false;
    LearnedControls controls_;
    std::vector<Binding> bindings_;
};

} // namespace velmora
