#include "tuning/intervals.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

namespace {

constexpr double kC4 = 261.6255653006;

double above(double hertz, double cents)
{
    return hertz * std::exp2(cents / 1200.0);
}

} // namespace

TEST(Intervals, AreHeardAsTheNearestPureOnes)
{
    const struct {
        const char* name;
        double cents;
        int numerator, denominator, octaves;
        double distance, beats;
    } rows[] = {{"equal third", 400, 5, 4, 0, 13.686, 10.382},
                {"equal fifth", 700, 3, 2, 0, -1.955, 0.886},
                {"equal tenth", 1600, 5, 4, 1, 13.686, 10.382},
                {"equal seventeenth", 2800, 5, 4, 2, 13.686, 10.382},
                {"equal twelfth", 1900, 3, 2, 1, -1.955, 0.886},
                {"Pythagorean minor third", 294.135, 6, 5, 0, -21.506, 19.380},
                {"augmented sixth", 965.784, 7, 4, 0, -3.042, 3.215},
                {"unison", 0, 1, 1, 0, 0, 0},
                {"mistuned unison", 5, 1, 1, 0, 5, 0.757},
                {"narrow octave", 1195, 2, 1, 0, -5, 1.509},
                {"wide octave", 1205, 2, 1, 0, 5, 1.513},
                {"wide double octave", 2405, 2, 1, 1, 5, 3.027}};
    for (const auto& row : rows) {
        // The order of the notes makes no difference.
        for (const HeardInterval& heard :
             {hear(kC4, above(kC4, row.cents)), hear(above(kC4, row.cents), kC4)}) {
            EXPECT_NEAR(heard.cents, row.cents, 1e-9) << row.name;
            EXPECT_EQ(justIntervals()[heard.nearest],
                      (JustInterval{row.numerator, row.denominator}))
                << row.name;
            EXPECT_EQ(heard.octaves, row.octaves) << row.name;
            EXPECT_NEAR(heard.distance, row.distance, 1e-3) << row.name;
            EXPECT_NEAR(heard.beatsPerSecond, row.beats, 1e-3) << row.name;
        }
    }
}

TEST(Intervals, OfACircleAreMeasuredAsWhatTheyStandFor)
{
    // The wolves of quarter-comma meantone are nearer to other ratios, and may lie in any octave.
    const JustInterval third{5, 4}, fifth{3, 2};
    for (const double octaves : {-1.0, 0.0, 1.0}) {
        const HeardInterval wolf = hearAs(third, kC4, above(kC4, 427.373 + 1200 * octaves));
        EXPECT_NEAR(wolf.cents, 427.373, 1e-9);
        EXPECT_NEAR(wolf.distance, 41.059, 1e-3);
        EXPECT_NEAR(wolf.beatsPerSecond, 31.395, 1e-3);
    }
    EXPECT_NEAR(hearAs(fifth, kC4, above(kC4, 737.637 - 1200)).distance, 35.682, 1e-3);
    EXPECT_EQ(justIntervals()[hearAs(fifth, kC4, kC4).nearest], fifth);
}

} // namespace velmora
