#pragma once

#include "audio/Pcm.h"

#include <cstddef>

namespace velmora {

struct ImportOptions;

namespace sf2 {

struct Bank;
struct Sides;

/// Reads what a zone, or a pair of them, sounds: to the end of the loop if it loops until it has
/// died away, and else to the end of the longer side. Where a side ends earlier, its own loop is
/// repeated; without one it is silent. The options tell the form of the samples.
Pcm readPoints(const Bank& bank, const Sides& sides, const ImportOptions& options);

/// The number of bytes that `readPoints` returns.
std::size_t bytesOf(const Bank& bank, const Sides& sides, const ImportOptions& options);

} // namespace sf2

} // namespace velmora
