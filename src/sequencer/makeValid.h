#pragma once

#include "sequencer/Sequence.h"

namespace velmora {

/// Limits the times and the velocity of a note to what a document can hold. Call this for notes
/// from a file or the clipboard. Returns false if the note cannot be corrected: a NaN, a key above
/// 127 or a channel above 255.
bool makeValid(Note& note);

} // namespace velmora
