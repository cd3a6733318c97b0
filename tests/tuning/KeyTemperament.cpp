#include "tuning/KeyTemperament.h"

#include "tuning/TransposedTemperament.h"

#include <gtest/gtest.h>

#include <cmath>

namespace velmora {

TEST(KeyTemperament, GivesEachKeyItsPitch)
{
    std::array<double, 128> hertz{};
    for (std::size_t key = 0; key < hertz.size(); ++key)
        hertz[key] = 440.0 * std::exp2((static_cast<double>(key) - 69.0) / 12.0) *
                     std::exp2((key % 12 == 4 ? -14.0 : 0.0) / 1200.0);
    const auto octave = makeTemperament(hertz);
    EXPECT_TRUE(octave->repeatsEveryOctave());
    hertz[64] *= std::exp2(100.0 / 1200.0);
    const auto irregular = makeTemperament(hertz);
    EXPECT_FALSE(irregular->repeatsEveryOctave());

    const auto centsFromEqual = [](const Temperament& temperament, int key) {
        return 1200.0 * std::log2(temperament.pitchAt(key) / equal.pitchAt(key));
    };
    for (const int key : {0, 4, 52, 69, 127}) {
        const double expected = key % 12 == 4 ? -14.0 : 0.0;
        EXPECT_NEAR(centsFromEqual(*octave, key), expected, 1e-6) << key;
        EXPECT_NEAR(centsFromEqual(*irregular, key), expected, 1e-6) << key;
    }
    EXPECT_NEAR(centsFromEqual(*irregular, 64), 86.0, 1e-6);
    const TransposedTemperament higher(irregular->fresh(), {.root = 2, .a = 440.0});
    EXPECT_NEAR(centsFromEqual(higher, 66), 86.0, 1e-6) << "E has moved to F♯";
    EXPECT_NEAR(centsFromEqual(higher, 1), 0.0, 1e-6) << "from below the first key";
}

} // namespace velmora
