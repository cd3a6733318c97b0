#include "audio/PeriodClock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace velmora {

TEST(PeriodClock, GivesEvenMomentsThatAreNeverAheadOfTheWakeUps)
{
    constexpr double kLength = 128.0 / 48000.0;
    constexpr double kDrift = 1.0001; // the clock of the card
    PeriodClock clock(3 * kLength);
    std::mt19937 random(1);
    std::exponential_distribution<double> lateness(1.0 / (0.2 * kLength));
    double previous = 0.0, worst = 0.0;
    for (int i = 0; i < 20'000; ++i) {
        const double now = 100.0 + i * kLength * kDrift + std::min(lateness(random), 2 * kLength);
        const double start = clock.next(now, kLength);
        ASSERT_LE(start, now);
        ASSERT_FALSE(clock.wasLate());
        if (i > 1000)
            worst = std::max(worst, std::abs(start - previous - kLength));
        previous = start;
    }
    EXPECT_LT(worst, 0.05 * kLength);

    EXPECT_EQ(clock.next(previous + 100 * kLength, kLength), previous + 100 * kLength);
    EXPECT_TRUE(clock.wasLate()) << "after an interruption the clock starts anew";
}

} // namespace velmora
