#pragma once

#include <array>

namespace velmora {

/// Returns the places on the chain of fifths, where C is 0 and G is 1, by which the twelve notes of
/// a temperament are called that does not spell them itself. If its fifths form a chain with a wolf
/// between the ends, as those of meantone do, the notes have the names along that chain: from
/// E flat to G sharp, or from F to A sharp on root D. Otherwise they run from E flat to G sharp.
///
/// `cents` are the pitches of the pitch classes, above any pitch that they have in common.
std::array<int, 12> usualPlaces(const std::array<double, 12>& cents);

} // namespace velmora
