#pragma once

#include "tuning/KeyMapping.h"
#include "tuning/Scale.h"

#include <cstddef>
#include <span>

namespace velmora {

/// A scale and the keys that play it.
struct MappedScale {
    Scale scale;
    KeyMapping mapping;
};

/// Reads a scale as `readScale` does, with the extensions of .ascl files, which stand in comments
/// that begin with @ABL: REFERENCE_PITCH, in whose octave 4 key 60 is the first note, and
/// NOTE_NAMES. All others are ignored. Throws FormatError with the line, the column and what stands
/// there.
MappedScale readExtendedScale(std::span<const std::byte> bytes);

} // namespace velmora
