#include "tuning/spelling.h"

#include "tuning/meantoneGamut.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kTolerance = 2.0; ///< In cents.

} // namespace

std::string placeName(int place)
{
    const int fromF = place + 1 + 3 * 7;
    std::string name(1, "FCGDAEB"[fromF % 7]);
    for (int sharps = fromF / 7 - 3; sharps != 0; sharps += sharps > 0 ? -1 : 1)
        name += sharps > 0 ? '#' : 'b';
    return name;
}

std::string spelling(double cents)
{
    for (int fifths = -meantone::kFarthest; fifths <= meantone::kFarthest; ++fifths)
        if (std::abs(std::remainder(fifths * meantone::kFifth - cents, 1200.0)) < kTolerance)
            return placeName(fifths);
    return {};
}

std::string rootName(int pitchClass)
{
    return placeName(meantone::kHomePlaces.at(static_cast<std::size_t>(pitchClass)));
}

} // namespace velmora
