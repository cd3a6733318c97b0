#pragma once

#include "sequencer/Sequence.h"

namespace velmora {

/// Makes a note that comes from outside one that a document can hold: times and velocity beyond
/// their ranges become the nearest in them. False where it is none: a NaN, a key above 127 or a
/// channel above 255.
bool makeValid(Note& note);

} // namespace velmora
