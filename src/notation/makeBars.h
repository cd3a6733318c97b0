#pragma once

#include "notation/Score.h"

#include <vector>

namespace velmora {

/// Returns the bars of a piece up to a moment in divisions, with the signatures and tempos that
/// change there; at least one. A time signature that changes within a bar cuts it short.
std::vector<Score::Bar> makeBars(const Piece& piece, int end);

} // namespace velmora
