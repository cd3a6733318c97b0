#pragma once

#include "tuning/KeyMapping.h"
#include "tuning/Scale.h"

#include <string>

namespace velmora {

class Temperament;

/// A scale and the keys that play it.
struct SoundingScale {
    Scale scale;
    KeyMapping mapping;
};

/// Returns a scale and a mapping that give each key the pitch that it has in a temperament now,
/// within a millionth of a cent: the twelve notes from C if they repeat in every octave, the scale
/// of a `ScaleTemperament`, or else a note for each key.
SoundingScale soundingScale(const Temperament& temperament, const std::string& description);

} // namespace velmora
