#include "app/TuningMoment.h"

#include "app/Player.h"
#include "support/RecordingInstrument.h"
#include "tuning/FollowingMeantone.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

namespace velmora {

namespace {

class TuningMomentTest : public testing::Test {
protected:
    void play(Temperament& temperament, std::initializer_list<int> keys)
    {
        player_.setTemperament(temperament);
        player_.setInstrument(instrument_);
        for (const int key : keys)
            player_.keyOn(key, 1.0F, kMouse, 0.0);
        moment_ = readMoment(player_);
    }

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    Player player_;
    TuningMoment moment_;
};

} // namespace

TEST_F(TuningMomentTest, MeasuresWhatSounds)
{
    EXPECT_EQ(readMoment(player_), TuningMoment()) << "there is no instrument yet";
    Temperament meantone = Temperament::Meantone();
    play(meantone, {60, 64, 67});
    EXPECT_NEAR(moment_.hertz[60], 261.6256, 1e-3);
    const auto intervals = soundingIntervals(moment_);
    ASSERT_EQ(intervals.size(), 3U);
    EXPECT_NEAR(intervals[0].heard.distance, 0.0, 1e-6) << "the major third";
    EXPECT_EQ(intervals[1].upper, 67U);
    EXPECT_NEAR(intervals[1].heard.beatsPerSecond, 2.4335, 1e-3) << "the fifth";
    EXPECT_EQ(soundingChord(moment_), (Chord{Chord::Kind::Major, 0, 0}));

    player_.keyOff(64);
    player_.keyOff(67);
    moment_ = readMoment(player_);
    EXPECT_TRUE(soundingIntervals(moment_).empty());
    EXPECT_EQ(soundingPurities(moment_)[60], Purity::None) << "a single note is neither";
}

TEST_F(TuningMomentTest, TellsWhenAScaleOfAnySizeRepeats)
{
    Scale tritave;
    tritave.pitches = {Cent(700.0), Ratio(3.0, 1.0)};
    TransposedTemperament onD(std::make_unique<ScaleTemperament>(tritave),
                              {.root = 2, .a = std::nullopt});
    play(onD, {});
    EXPECT_NEAR(moment_.period, 1901.955, 1e-3);
}

TEST_F(TuningMomentTest, RatesKeysByTheirWorstInterval)
{
    Temperament meantone = Temperament::Meantone();
    play(meantone, {44, 60, 63, 64});
    const auto purities = soundingPurities(moment_);
    EXPECT_EQ(purities[44], Purity::Rough) << "G sharp and C, G sharp and E flat";
    EXPECT_EQ(purities[60], Purity::Rough);
    EXPECT_EQ(purities[65], Purity::None);
    constexpr std::pair<double, Purity> kRows[] = {{5.9, Purity::Pure},
                                                   {-5.9, Purity::Pure},
                                                   {-15.9, Purity::Tempered},
                                                   {16.1, Purity::Rough}};
    for (const auto& [cents, purity] : kRows)
        EXPECT_EQ(purityOf(cents), purity) << cents;
}

TEST_F(TuningMomentTest, SpellsAsTheTemperamentThenAsTheChordThenAsTheKeys)
{
    Temperament tempered = Temperament::Equal();
    play(tempered, {56, 60, 63});
    const auto chord = soundingChord(moment_);
    EXPECT_EQ(toneNames(moment_)[8], "G#");
    EXPECT_EQ(toneNames(moment_)[3], "Eb") << "as players of meantone call it";
    EXPECT_EQ(toneNames(moment_, chord)[8], "Ab");
    player_.silence();

    TransposedTemperament onD(std::make_unique<Temperament>(Temperament::Meantone()),
                              {.root = 2, .a = std::nullopt});
    play(onD, {62, 66, 69});
    EXPECT_EQ(toneNames(moment_)[3], "D#") << "the third of B";
    EXPECT_EQ(toneNames(moment_)[10], "A#");
    player_.silence();

    FollowingMeantone following;
    play(following, {65, 68, 72});
    EXPECT_EQ(toneNames(moment_)[8], "Ab") << "in F minor";
    EXPECT_TRUE(moment_.centre);
}

TEST_F(TuningMomentTest, ListsOnlyTheIntervalsAboveTheBassOfManyKeys)
{
    Temperament tempered = Temperament::Equal();
    play(tempered, {48, 52, 55, 58, 62, 66, 69});
    EXPECT_EQ(soundingIntervals(moment_).size(), 21U);
    player_.keyOn(72, 1.0F, kMouse, 0.0);
    const auto intervals = soundingIntervals(readMoment(player_));
    EXPECT_EQ(intervals.size(), 7U);
    for (const auto& each : intervals)
        EXPECT_EQ(each.lower, 48U);
}

} // namespace velmora
