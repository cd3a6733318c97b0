#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace velmora {

class Tuning;

/// The 31 pitches of quarter-comma meantone from B♯ to C♭, and the places that they have on the
/// chain of fifths: C is 0, G is 1 and F is −1.
namespace meantone {

/// The number of pitches.
constexpr std::size_t kPitches = 31;

/// The length of the chain of fifths on either side of C.
constexpr int kFarthest = 15;

/// The fifth in cents. Four of them make two octaves and a pure third.
constexpr double kFifth = 696.5784284662087;

/// The home place of each pitch class: E♭ to G♯.
constexpr std::array<int, 12> kHomePlaces = {0, 7, 2, -3, 4, -1, 6, 1, 8, 3, -2, 5};

/// Returns the pitches in ascending order.
std::vector<std::unique_ptr<Tuning>> pitches();

/// Returns the index of the pitch at a place from −15 to 15. An octave has 31 nearly equal steps,
/// and a fifth 18 of them.
constexpr std::size_t indexOf(int place)
{
    constexpr int kStepsOfFifth = 18;
    constexpr int kIndexOfC = 1;
    constexpr int kSteps = static_cast<int>(kPitches);
    const int index = (kStepsOfFifth * place + kIndexOfC) % kSteps;
    return static_cast<std::size_t>(index < 0 ? index + kSteps : index);
}

/// Returns the place of the pitch with an index, from −15 to 15.
constexpr int placeOf(std::size_t index)
{
    int place = -kFarthest;
    while (indexOf(place) != index)
        ++place;
    return place;
}

} // namespace meantone

} // namespace velmora
