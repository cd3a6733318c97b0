#pragma once

#include "tuning/TuningShape.h"

#include <string>

namespace velmora {

class Temperament;

/// Returns a scale and a mapping that give each key the pitch that it has in a temperament now,
/// within a millionth of a cent: the twelve notes from C if they repeat in every octave, the scale
/// of a `ScaleTemperament`, or else a note for each key.
TuningShape soundingScale(const Temperament& temperament, const std::string& description);

} // namespace velmora
