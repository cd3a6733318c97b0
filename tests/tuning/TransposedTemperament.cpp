#include "tuning/TransposedTemperament.h"

#include "support/RecordingInstrument.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/FollowingMeantone.h"

#include <gmock/gmock.h>

#include <cmath>

namespace velmora {

using testing::ElementsAre;

namespace {

std::unique_ptr<Temperament> meantoneOn(int root, std::optional<double> a = {})
{
    return std::make_unique<TransposedTemperament>(
        std::make_unique<Temperament>(Temperament::Meantone()), Transposition{root, a});
}

double centsBetween(double low, double high)
{
    return 1200.0 * std::log2(high / low);
}

} // namespace

TEST(TransposedTemperament, MovesTheTemperamentToItsRoot)
{
    const Temperament meantone = Temperament::Meantone();
    for (unsigned long key = 0; key < 128; ++key)
        EXPECT_EQ(meantoneOn(0)->getPitch(key), meantone.getPitch(key)) << key;
    for (int root = 0; root < 12; ++root) {
        const auto rotated = meantoneOn(root);
        for (int key = 0; key < 128; ++key)
            EXPECT_NEAR(centsBetween(meantone.pitchAt(key - root), rotated->pitchAt(key)),
                        100.0 * root, 1e-9)
                << "key " << key << " on root " << root;
        for (int other = 0; other < 12; ++other) {
            const TransposedTemperament twice(meantoneOn(root), {other, {}});
            const auto once = meantoneOn((root + other) % 12);
            EXPECT_NEAR(centsBetween(once->getPitch(70), twice.getPitch(70)), 0.0, 1e-9)
                << root << " then " << other;
        }
    }
}

TEST(TransposedTemperament, GivesAItsPitch)
{
    for (int root = 0; root < 12; ++root)
        EXPECT_NEAR(meantoneOn(root, 415.0)->getPitch(69) / 2, 415.0, 1e-9) << "root " << root;
    EXPECT_NEAR(meantoneOn(0, 440.0)->baseFrequency(), 263.182, 1e-3)
        << "C of meantone under A 440";
    const auto copy = meantoneOn(2, 392.0)->fresh();
    EXPECT_NEAR(copy->getPitch(69) / 2, 392.0, 1e-9);
}

TEST(TransposedTemperament, SpellsFromItsRoot)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    TransposedTemperament following(std::make_unique<FollowingMeantone>(), {4, {}});
    EXPECT_EQ(following.place(64), 4) << "E is the tonic";
    EXPECT_EQ(following.place(68), 8) << "G sharp lies a third above it";
    EXPECT_EQ(following.place(63), 9) << "the home of pitch class 11 is the leading note D sharp";
    EXPECT_NEAR(centsBetween(following.getPitch(64), following.getPitch(68)), 386.3137, 1e-3);
    following.setup(instrument, 127, 1.0F);
    following.release(127);
    EXPECT_THAT(calls, ElementsAre("tune 0 127"));
}

TEST(TransposedTemperament, PlaysTheSameKeyForASpelling)
{
    Calls calls;
    RecordingInstrument instrument(calls);
    TransposedTemperament dynamic(std::make_unique<DynamicTemperament>(), {7, {}});
    dynamic.isomorph(instrument, 13);
    EXPECT_THAT(calls,
                ElementsAre("tune 0 127",
                            "play " + std::to_string(Temperament::isomorphKey(13)) + " 1.00"));
}

} // namespace velmora
