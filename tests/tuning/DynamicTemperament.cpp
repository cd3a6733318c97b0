#include "tuning/DynamicTemperament.h"

#include "support/RecordingInstrument.h"

#include <gmock/gmock.h>

namespace velmora {

struct DynamicTemperamentTest : public testing::Test {
    double cents(std::size_t key) const { return dynamic.getTuning(key).cent(); }
    DynamicTemperament dynamic;
    Calls calls;
    RecordingInstrument instrument{calls};
};

TEST_F(DynamicTemperamentTest, StartsAsMeantoneAndOffersTwoNeighboursOfEachPitchClass)
{
    const Temperament meantone = Temperament::Meantone();
    for (unsigned long key = 0; key < 128; ++key)
        EXPECT_EQ(dynamic.getPitch(key), meantone.getPitch(key)) << "key " << key;
    constexpr double expected[3 * 12] = {
        -41.05886, 0.0,       41.05886,   41.05886,  76.049,    117.10786, 152.098,   193.15686,
        234.21572, 269.20586, 310.26471,  351.32357, 351.32357, 386.31371, 427.37257, 462.36271,
        503.42157, 544.48043, 544.48043,  579.47057, 620.52943, 655.51957, 696.57843, 737.63729,
        737.63729, 772.62743, 813.68629,  848.67643, 889.73529, 930.79414, 965.78428, 1006.84314,
        1047.902,  1047.902,  1082.89214, 1123.951};
    for (int i = 0; i < 36; ++i) {
        dynamic.isomorph(instrument, i - 1);
        EXPECT_NEAR(cents(static_cast<std::size_t>(i / 3)), expected[i], 1e-5) << i;
        EXPECT_EQ(calls.back(), fmt::format("play {} 1.00", 48 + i / 3));
    }
}

TEST_F(DynamicTemperamentTest, AStruckKeyTakesItsPitchClassHomeAndSilenceTakesCHome)
{
    dynamic.isomorph(instrument, 2);
    dynamic.setup(instrument, 61, 0.5F);
    EXPECT_EQ(cents(61), 76.049);
    EXPECT_THAT(calls, testing::ElementsAre("tune 0 127", "play 49 1.00", "tune 0 127"));

    dynamic.isomorph(instrument, -1);
    dynamic.setup(instrument, 62, 1.0F);
    for (int tick = 0; tick < 37; ++tick)
        dynamic.fade(0.9);
    EXPECT_NEAR(cents(60), -41.05886, 1e-5) << "D, struck at full velocity, has not faded";
    dynamic.fade(0.9);
    EXPECT_EQ(cents(60), 0.0);
}

} // namespace velmora
