#pragma once

#include "import/PipeOrgan.h"
#include "sound/ConsoleDefinition.h"
#include "sound/InstrumentStop.h"

#include <cstddef>
#include <functional>
#include <set>
#include <vector>

namespace velmora {

/// Returns whether a key of the stop has a pipe that is loaded.
bool hasSound(const ConsoleDefinition::Stop& stop, const std::vector<InstrumentStop>& ranks);

/// Returns whether a key of the stop has a pipe whose file is there.
bool hasFile(const ConsoleDefinition::Stop& stop, const PipeOrgan& organ);

/// Draws the first stop of each division that can sound, so that every keyboard sounds, unless such
/// a stop is drawn already.
void drawOpeningStops(ConsoleDefinition& console,
                      const std::function<bool(const ConsoleDefinition::Stop&)>& canSound);

/// Returns the ranks that the drawn stops play.
std::set<std::size_t> ranksOfDrawnStops(const ConsoleDefinition& console);

} // namespace velmora
