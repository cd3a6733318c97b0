#include "tuning/usualPlaces.h"

#include "tuning/intervals.h"
#include "tuning/meantoneGamut.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

/// A wolf is at least so much farther from pure than every other fifth, in cents.
constexpr double kWolfMargin = 10.0;

/// The chain begins at most so many fifths below C, and at most three above, so that it has few
/// signs.
constexpr int kLowestBegin = -8;

} // namespace

std::array<int, 12> usualPlaces(const std::array<double, 12>& cents)
{
    std::array<int, 12> places = meantone::kHomePlaces;
    const double pure = JustInterval{3, 2}.cents();
    std::array<double, 12> distances{}; // of the fifth above each note from a pure one
    for (std::size_t tone = 0; tone < cents.size(); ++tone) {
        const double fifth = cents[(tone + 7) % 12] - cents[tone];
        distances[tone] = std::abs(std::remainder(fifth - pure, 1200.0));
        if (!std::isfinite(distances[tone]))
            return places;
    }
    const auto wolf = std::ranges::max_element(distances);
    const auto isOrdinary = [&](double each) { return each <= *wolf - kWolfMargin; };
    if (std::ranges::count_if(distances, isOrdinary) != 11)
        return places;
    const auto first = static_cast<int>(wolf - distances.begin() + 7) % 12;
    int begin = kLowestBegin;
    while ((7 * begin - first) % 12 != 0)
        ++begin;
    for (int place = begin; place < begin + 12; ++place)
        places[static_cast<std::size_t>((7 * place + 12 * 7) % 12)] = place;
    return places;
}

} // namespace velmora
