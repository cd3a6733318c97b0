#include "tuning/Temperament.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

TEST(Temperament, GivesEveryKeyItsPitch)
{
    EXPECT_NEAR(equal.getPitch(57), 440.0, 1e-6);
    EXPECT_EQ(equal.getPitch(48), 261.6255653006);
    EXPECT_EQ(equal.getPitch(0), equal.baseFrequency() / 16);
    for (unsigned long key = 1; key < 128; ++key)
        EXPECT_NEAR(equal.getPitch(key) / equal.getPitch(key - 1), std::exp2(1.0 / 12), 1e-9);
    EXPECT_EQ(&equal.getTuning(7), &equal.getTuning(127)) << "same pitch class";
    EXPECT_NEAR(Cent(701.955).tune(100.0, -1), 75.0, 1e-4);
    EXPECT_NEAR(Ratio(5, 4).cent(), 386.31371, 1e-5);
    EXPECT_EQ(Ratio(5, 4).tune(100.0, 2), 500.0);
    EXPECT_EQ(Freq(300.0).tune(100.0, 1), 600.0) << "independent of the base";
    EXPECT_EQ(Freq(300.0).cent(), 0.0);
}

TEST(Temperament, MeantoneHasFifthsAQuarterCommaNarrow)
{
    // The eleven fifths from E flat up to G sharp.
    const Temperament meantone = Temperament::Meantone();
    for (unsigned long i = 0, key = 51; i < 11; ++i, key = 48 + (key + 7) % 12)
        EXPECT_NEAR(meantone.getPitch(key + 7) / meantone.getPitch(key), std::pow(5.0, 0.25), 1e-6)
            << "fifth above key " << key;
    EXPECT_EQ(meantone.getTuning(8).ratio(), 25.0 / 16.0);
}

} // namespace velmora
