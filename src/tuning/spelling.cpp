#include "tuning/spelling.h"

#include <cmath>

namespace velmora {

namespace {

/// The fifth in cents: four of them make a pure third and two octaves.
constexpr double kFifth = 696.5784284662087;

/// Fifths from C to the ends of the chain.
constexpr int kFarthest = 15;

constexpr double kTolerance = 2.0;

/// Of a pitch so many fifths above C.
std::string nameOf(int fifths)
{
    const int fromF = fifths + 1 + 3 * 7;
    std::string name(1, "FCGDAEB"[fromF % 7]);
    for (int sharps = fromF / 7 - 3; sharps != 0; sharps += sharps > 0 ? -1 : 1)
        name += sharps > 0 ? '#' : 'b';
    return name;
}

} // namespace

std::string spelling(double cents)
{
    for (int fifths = -kFarthest; fifths <= kFarthest; ++fifths)
        if (std::abs(std::remainder(fifths * kFifth - cents, 1200.0)) < kTolerance)
            return nameOf(fifths);
    return {};
}

} // namespace velmora
