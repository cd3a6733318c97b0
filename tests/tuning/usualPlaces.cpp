#include "tuning/usualPlaces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace velmora {

namespace {

/// Pitches made of eleven fifths of one size, upwards from a place on the chain of fifths.
std::array<double, 12> chainOf(double fifth, int begin)
{
    std::array<double, 12> cents{};
    for (int place = begin; place < begin + 12; ++place) {
        const double pitch = fifth * place;
        cents[static_cast<std::size_t>((7 * place + 84) % 12)] =
            pitch - 1200.0 * std::floor(pitch / 1200.0);
    }
    return cents;
}

} // namespace

TEST(UsualPlaces, FollowTheChainOfFifthsUpToItsWolf)
{
    for (const double fifth : {694.786, 696.578, 698.371, 701.955})
        for (int begin = -8; begin <= 3; ++begin) {
            const auto places = usualPlaces(chainOf(fifth, begin));
            for (int place = begin; place < begin + 12; ++place)
                EXPECT_EQ(places.at(static_cast<std::size_t>((7 * place + 84) % 12)), place)
                    << fifth << " from " << begin;
        }
}

TEST(UsualPlaces, AreThoseOfMeantoneOnCIfNoFifthIsAWolf)
{
    const auto ordinary = usualPlaces(chainOf(696.578, -3));
    EXPECT_EQ(usualPlaces(chainOf(700.0, 2)), ordinary) << "equal";
    auto several = chainOf(696.578, 0);
    several[6] += 30.0;
    EXPECT_EQ(usualPlaces(several), ordinary) << "two bad fifths more";
    several[6] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(usualPlaces(several), ordinary) << "a key without a pitch";
}

} // namespace velmora
