#pragma once

#include "tuning/KeyMapping.h"

#include <cstddef>
#include <span>
#include <string>

namespace velmora {

/// Reads a keyboard mapping by the rules of the Scala format (.kbm). These stand on a line each:
/// the number of keys before it repeats, the first and the last key, the middle key, the reference
/// key and its frequency, the formal octave, and the degree of each key or an x. Keys that are
/// missing at the end are silent. Lines that begin with ! are comments. Throws FormatError with the
/// line, the column and what stands there.
KeyMapping readMapping(std::span<const std::byte> bytes);

/// Returns a mapping of a scale of so many notes in the format that `readMapping` reads, exactly.
std::string writeMapping(const KeyMapping& mapping, std::size_t notes);

} // namespace velmora
