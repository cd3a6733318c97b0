#include "tuning/FollowingMeantone.h"

#include "support/RecordingInstrument.h"
#include "tuning/DynamicTemperament.h"
#include "tuning/PureTemperament.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

namespace velmora {

using testing::ElementsAre;

struct FollowingMeantoneTest : public testing::Test {
    void press(Temperament& temperament, std::initializer_list<int> keys, double time)
    {
        for (const int key : keys) {
            temperament.setTime(time);
            temperament.setup(instrument, static_cast<unsigned char>(key), 1.0F);
        }
    }

    static void release(Temperament& temperament, std::initializer_list<int> keys, double time)
    {
        for (const int key : keys) {
            temperament.setTime(time);
            temperament.release(static_cast<unsigned char>(key));
        }
    }

    static double interval(const Temperament& temperament, unsigned long low, unsigned long high)
    {
        return 1200.0 * std::log2(temperament.getPitch(high) / temperament.getPitch(low));
    }

    static SpellingFollower::Settings uncorrected()
    {
        SpellingFollower::Settings settings;
        settings.correction = 0.0;
        return settings;
    }

    Calls calls;
    RecordingInstrument instrument{calls};
};

TEST_F(FollowingMeantoneTest, HasThePitchesOfDynamicAndStartsAtItsHome)
{
    const FollowingMeantone following;
    DynamicTemperament dynamic;
    for (unsigned long key = 0; key < 128; ++key)
        EXPECT_EQ(following.getPitch(key), dynamic.getPitch(key)) << key;
    for (int place = -meantone::kFarthest; place <= meantone::kFarthest; ++place)
        EXPECT_NEAR(std::remainder(meantone::pitches()[meantone::indexOf(place)]->cent() -
                                       place * meantone::kFifth,
                                   1200.0),
                    0.0, 0.001)
            << place;
}

TEST_F(FollowingMeantoneTest, SpellsThirdsPurelyInDistantKeys)
{
    FollowingMeantone following(uncorrected());
    press(following, {64, 68, 71}, 0.0); // E major
    release(following, {64, 68, 71}, 0.5);
    press(following, {59, 63, 66}, 0.5); // B major: D♯, not E♭
    EXPECT_NEAR(interval(following, 59, 63), 386.3, 0.1);
    release(following, {59, 63, 66}, 1.0);
    // After a long silence, F minor has an A♭.
    press(following, {53, 60}, 20.0);
    press(following, {56}, 20.1);
    EXPECT_NEAR(interval(following, 56, 60), 386.3, 0.1);
    EXPECT_EQ(calls.back(), "tune 0 127");
}

TEST_F(FollowingMeantoneTest, HeldNotesCountForMoreThanThoseBefore)
{
    FollowingMeantone following(uncorrected());
    for (const double time : {0.0, 0.2}) {
        press(following, {63, 67, 70}, time); // E♭ major
        release(following, {63, 67, 70}, time + 0.2);
    }
    press(following, {64, 71, 68}, 0.4); // E major: G♯, not A♭
    EXPECT_NEAR(interval(following, 64, 68), 386.3, 0.1);
}

TEST_F(FollowingMeantoneTest, TheLastNoteOfAChordCanMendItsFirst)
{
    FollowingMeantone patient;
    FollowingMeantone hasty(uncorrected());
    FollowingMeantone late;
    for (FollowingMeantone* following : {&patient, &hasty, &late}) {
        press(*following, {68}, 0.0); // G♯ at home, but A♭ above D, F and G
        press(*following, {62, 65, 67}, following == &late ? 0.05 : 0.02);
    }
    EXPECT_NEAR(interval(patient, 67, 68), 117.1, 0.1);
    EXPECT_NEAR(interval(hasty, 67, 68), 76.0, 0.1);
    EXPECT_NEAR(interval(late, 67, 68), 76.0, 0.1) << "the others come too late";
}

TEST_F(FollowingMeantoneTest, NeverRespellsWhatSounds)
{
    FollowingMeantone following;
    std::mt19937 random(7);
    std::array<double, 128> pressed{};
    std::array<double, 12> pitch{}, since{};
    std::array<int, 12> held{};
    double time = 0.0;
    for (int step = 0; step < 20'000; ++step) {
        time += std::uniform_real_distribution(0.0, 0.2)(random);
        const auto key = static_cast<unsigned char>(36 + random() % 48);
        const std::size_t pitchClass = key % 12U;
        following.setTime(time);
        if (pressed[key] == 0.0) {
            following.setup(instrument, key, 1.0F);
            if (held[pitchClass]++ == 0)
                since[pitchClass] = time;
            pressed[key] = time;
        } else {
            following.release(key);
            pressed[key] = 0.0;
            --held[pitchClass];
        }
        for (std::size_t i = 0; i < 12; ++i) {
            const double now = following.getTuning(i).cent();
            if (held[i] > 0 && time - since[i] >= 0.04) {
                ASSERT_EQ(now, pitch[i]) << "step " << step << ", pitch class " << i;
            }
            pitch[i] = now;
        }
        calls.clear();
    }
}

TEST_F(FollowingMeantoneTest, PureMakesChordsPureAndKeepsToItsPitch)
{
    PureTemperament pure;
    press(pure, {60, 64, 67}, 0.0);
    EXPECT_NEAR(interval(pure, 60, 64), 386.31, 0.3);
    EXPECT_NEAR(interval(pure, 60, 67), 701.96, 0.5);
    EXPECT_NEAR(interval(pure, 64, 67), 315.64, 0.5);
    EXPECT_LT(std::abs(pure.drift()), 3.0);

    // C A D G, each two pure intervals from the last, would sink by a comma in each round.
    const auto driftOf = [&](Drift policy, int steps) {
        PureTemperament temperament(policy);
        double time = 0.0;
        for (int round = 0; round < 8; ++round) {
            for (const auto& [low, high] : {std::pair(60, 69), {69, 62}, {62, 67}, {67, 60}}) {
                press(temperament, {low, high}, time);
                time += 0.5;
                release(temperament, {low}, time);
            }
        }
        temperament.fade(0.9); // while keys sound
        release(temperament, {60, 69, 62, 67}, time);
        for (int step = 0; step < steps; ++step)
            temperament.fade(0.9);
        const double inSilence = temperament.drift();
        press(temperament, {60}, time + 60.0);
        if (policy != Drift::TiedToA) {
            EXPECT_NEAR(temperament.drift(), inSilence, 1e-6);
        }
        return temperament.drift();
    };
    EXPECT_LT(std::abs(driftOf(Drift::TiedToA, 0)), 10.0);
    const double drifted = driftOf(Drift::Free, 3600);
    EXPECT_GT(std::abs(drifted), 15.0);
    EXPECT_NEAR(driftOf(Drift::Returns, 0), drifted, 0.01);
    EXPECT_NEAR(driftOf(Drift::Returns, 120), drifted * std::exp(-1.0), 0.1) << "in two seconds";
    EXPECT_LT(std::abs(driftOf(Drift::Returns, 900)), 0.1);
}

} // namespace velmora
