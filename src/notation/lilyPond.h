#pragma once

#include "notation/Score.h"

#include <string>

namespace velmora {

/// Returns a score as a LilyPond file (version 2.24), in UTF-8, for engraving.
std::string writeLilyPond(const Score& score);

} // namespace velmora
