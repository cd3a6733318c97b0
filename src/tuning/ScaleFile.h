#pragma once

#include "tuning/Scale.h"

#include <cstddef>
#include <span>
#include <string>

namespace velmora {

/// The greatest number of notes in a scale.
constexpr int kMostScaleNotes = 128;

/// Reads a scale by the rules of the Scala format (.scl): a description, the number of notes, and
/// so many pitches, each on a line. Lines that begin with ! are comments. A pitch with a point is
/// in cents, any other one is a ratio, of which the denominator may be missing. The last pitch is
/// the period. Throws FormatError with the line, the column and what stands there.
Scale readScale(std::span<const std::byte> bytes);

/// Returns a scale in the format that `readScale` reads, exactly.
std::string writeScale(const Scale& scale);

} // namespace velmora
