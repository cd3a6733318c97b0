#pragma once

#include "sequencer/MusicalTime.h"

#include <variant>
#include <vector>

namespace velmora {

/// A tempo, a signature or a marker of a piece.
using TimeEntry = std::variant<Tempo, TimeSignature, KeySignature, Marker>;

double stepOf(const TimeEntry& entry);

/// Returns the entry at another step.
TimeEntry movedTo(TimeEntry entry, double step);

/// Returns everything that a piece has, in order of time.
std::vector<TimeEntry> entriesOf(const MusicalTime& time);

/// Return the time with an entry, which takes the place of one of its kind at its step, or without
/// one. Markers can share a step.
MusicalTime with(const MusicalTime& time, const TimeEntry& entry);
MusicalTime without(const MusicalTime& time, const TimeEntry& entry);

} // namespace velmora
