#include "tuning/Temperament.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Temperament, EqualSoundsAAt440AndMiddleCAtTheBase)
{
    EXPECT_NEAR(equal.getPitch(57), 440.0, 1e-6);
    EXPECT_EQ(equal.getPitch(48), 261.6255653006);
    for (unsigned long key = 1; key < 128; ++key)
        EXPECT_NEAR(1200.0 * std::log2(equal.getPitch(key) / equal.getPitch(key - 1)), 100.0, 1e-9)
            << "key " << key;
}

TEST(Temperament, RepeatsItsPitchClassesInEveryOctave)
{
    const Temperament meantone = Temperament::Meantone();
    EXPECT_EQ(meantone.getPitch(0), meantone.baseFrequency() / 16);
    EXPECT_EQ(meantone.getPitch(120), meantone.baseFrequency() * 64);
    for (unsigned long key = 0; key < 116; ++key) {
        EXPECT_EQ(&meantone.getTuning(key), &meantone.getTuning(key + 12));
        EXPECT_DOUBLE_EQ(meantone.getPitch(key + 12), 2.0 * meantone.getPitch(key));
    }
}

TEST(Temperament, MeantoneHasPureThirdsAndFifthsAQuarterCommaNarrow)
{
    const Temperament meantone = Temperament::Meantone();
    const auto interval = [&](unsigned long low, unsigned long high) {
        return 1200.0 * std::log2(meantone.getPitch(high) / meantone.getPitch(low));
    };
    constexpr double kRounding = 0.001;
    const double fifth = 1200.0 * std::log2(std::pow(5.0, 0.25));
    const double third = 1200.0 * std::log2(5.0 / 4.0);

    // Eleven fifths upwards from E flat to G sharp; the twelfth is the wolf.
    unsigned long key = 51;
    for (int i = 0; i < 11; ++i, key = 48 + (key + 7) % 12)
        EXPECT_NEAR(interval(key, key + 7), fifth, kRounding) << "fifth above key " << key;
    EXPECT_NEAR(interval(56, 63), 8400.0 - 11 * fifth, kRounding) << "wolf";
    for (const unsigned long low : {48, 50, 51, 52, 53, 55, 57, 58})
        EXPECT_NEAR(interval(low, low + 4), third, kRounding) << "third above key " << low;
    EXPECT_EQ(meantone.getTuning(4).ratio(), 5.0 / 4.0);
    EXPECT_EQ(meantone.getTuning(8).ratio(), 25.0 / 16.0);
}

TEST(Tuning, SoundsAtItsPitchAndTellsItsMeasures)
{
    const Cent fifth(701.955);
    EXPECT_NEAR(fifth.ratio(), 1.5, 1e-6);
    EXPECT_NEAR(fifth.tune(100.0, -1), 75.0, 1e-4);

    const Ratio third(5, 4);
    EXPECT_NEAR(third.cent(), 386.31371, 1e-5);
    EXPECT_EQ(third.tune(100.0, 2), 500.0);

    const Freq hertz(300.0);
    EXPECT_EQ(hertz.tune(100.0, 1), 600.0) << "whatever the base";
    EXPECT_EQ(hertz.cent(), 0.0);
    EXPECT_EQ(hertz.ratio(), 0.0);
}
