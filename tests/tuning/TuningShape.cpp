#include "tuning/TuningShape.h"

#include "tuning/FollowingMeantone.h"
#include "tuning/ScaleTemperament.h"

#include <gtest/gtest.h>

#include <utility>

namespace velmora {

using Fifths = HistoricalTemperament::Fifths;

TEST(TuningShape, IsThatOfTheTemperament)
{
    // The base is not middle C, and one pitch is absolute.
    Temperament temperament = Temperament::Meantone();
    temperament.setBaseFrequency(250.0);
    const auto shape = shapeOf(temperament);
    ASSERT_TRUE(shape);
    const ScaleTemperament again(shape->scale, shape->mapping);
    for (int key = 0; key < 128; ++key)
        EXPECT_NEAR(again.pitchAt(key) / temperament.pitchAt(key), 1.0, 1e-9) << key;

    Scale bohlen;
    bohlen.pitches = {Cent(146.3), Ratio(3, 1)};
    const auto own = shapeOf(ScaleTemperament(bohlen));
    ASSERT_TRUE(own);
    EXPECT_EQ(own->scale.pitches.size(), 2U);
    EXPECT_FALSE(shapeOf(FollowingMeantone())) << "it has no pitches of its own";
}

TEST(TuningShape, IsMadeOfFifths)
{
    const std::pair<const char*, std::size_t> rows[] = {
        {"Quarter-Comma Meantone", 8}, {"Kirnberger III", 6}, {"Silbermann", 8}, {"Vallotti", 0}};
    for (const auto& [name, rest] : rows) {
        const Scale scale = shapeOf(findHistoricalTemperament(name)->make())->scale;
        const auto fifths = fifthsOf(scale, rest);
        ASSERT_TRUE(fifths) << name;
        for (int degree = 0; degree <= 12; ++degree)
            EXPECT_NEAR(scaleOf(*fifths).cents(degree), scale.cents(degree), 0.5) << name << degree;
    }
    EXPECT_FALSE(fifthsOf(shapeOf(findHistoricalTemperament("Kirnberger III")->make())->scale, 8))
        << "its schisma lies in another fifth";
    const auto meantone = fifthsOf(shapeOf(Temperament::Meantone())->scale, 8);
    ASSERT_TRUE(meantone);
    EXPECT_EQ(meantone->comma, Fifths::Comma::Syntonic);
    EXPECT_EQ(meantone->parts, 4);
    EXPECT_EQ(meantone->narrowed[0], 1);
    const auto equalFifths = fifthsOf(shapeOf(Temperament::Equal())->scale, 8);
    ASSERT_TRUE(equalFifths);
    EXPECT_EQ(equalFifths->parts, 11) << "a Pythagorean twelfth is a syntonic eleventh";
}

} // namespace velmora
