#pragma once

#include "midi/messages.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

class FileEdits;
struct MidiFileEvents;

using midi::kPitchWheel;
using midi::kPressure;

/// The number of controllers of a channel, those two included.
constexpr int kControllerNumbers = 130;

/// The value of a controller from a step on.
struct ControllerEvent {
    double step;
    std::uint8_t channel; ///< 0 to 15.
    std::uint8_t number;  ///< A controller, `kPitchWheel` or `kPressure`.
    std::uint16_t value;  ///< 0 to `largestValue(number)`.

    bool operator==(const ControllerEvent&) const = default;
};

/// In order of time.
using Controllers = std::vector<ControllerEvent>;

/// The greatest value of a controller, and the one that it has without any event.
int largestValue(int number);
int restingValue(int number);

/// True for the pedals that are either down or up, with values from 64 on or below.
bool isSwitch(int number);

/// Reads the controllers of a file, except those that select or edit a sound, its volume, and the
/// channel modes. See docs/decisions.md, 192.
Controllers controllersOf(const MidiFileEvents& file);

/// Replaces the controllers of a file, unless they are equal.
void editControllers(const MidiFileEvents& file, const Controllers& controllers, FileEdits& edits);

/// Returns an event at a step for each controller that has any, with the value that it has just
/// before.
Controllers valuesBefore(const Controllers& controllers, double step);

/// Returns the same for the controllers that move between two steps, with the values that they have
/// just before the first one, in no particular order. Looks only at what is near, unless a
/// controller has not moved for long.
Controllers valuesBeforePass(const Controllers& controllers, double from, double to);

/// Adds the end of what a hand or foot still holds after recorded moves: pedals, the wheel and the
/// pressure.
void letGo(Controllers& recorded, double step);

/// True if `controllers` has an event.
bool holds(const Controllers& controllers, const ControllerEvent& event);

/// Returns the controllers that `withRecorded` replaces.
Controllers replacedBy(const Controllers& recorded, const Controllers& controllers);

/// Returns the controllers with recorded ones added. Each replaces what its own controller does
/// from its first to its last move. See docs/decisions.md, 193.
Controllers withRecorded(const Controllers& controllers, Controllers recorded);

/// Leaves out what nobody hears: values that differ from the last one by no more than `tolerance`,
/// unless they last, and pedals that stay down or up.
Controllers thinned(const Controllers& controllers, int tolerance);

} // namespace velmora
