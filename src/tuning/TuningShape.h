#pragma once

#include "tuning/KeyMapping.h"
#include "tuning/Scale.h"
#include "tuning/historicalTemperaments.h"

#include <array>
#include <optional>

namespace velmora {

class Temperament;

/// A scale, and the keys and the pitch on which it stands.
struct TuningShape {
    Scale scale;
    KeyMapping mapping;
};

/// Returns the shape of a temperament in its initial state: its own scale, or its twelve notes in
/// an octave. Empty for adaptive temperaments and for those that only have pitches of keys.
std::optional<TuningShape> shapeOf(const Temperament& temperament);

/// Returns by how many parts of a comma the fifths of a scale of twelve notes are narrowed, within
/// a twentieth of a cent; the fifth at `rest`, counted from C–G, may have any size. The smallest
/// number of parts is found. Empty if there is none up to 24.
std::optional<HistoricalTemperament::Fifths> fifthsOf(const Scale& scale, std::size_t rest);

/// Returns a scale of twelve notes that is made of fifths.
Scale scaleOf(const HistoricalTemperament::Fifths& fifths);

} // namespace velmora
