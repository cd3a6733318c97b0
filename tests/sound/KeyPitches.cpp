// Renders the General MIDI instrument in temperaments that give each key a pitch of its own.

#include "audio/Synthesizer.h"
#include "sound/MIDIInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/Stereo.h"
#include "tuning/ScaleTemperament.h"
#include "tuning/TransposedTemperament.h"

#include <gtest/gtest.h>

#include <map>

namespace velmora {

namespace {

constexpr std::size_t kLaneRate = 48000;

ScaleTemperament equalDivision(int count, double period, double moved = 0.0)
{
    Scale scale;
    for (int i = 1; i <= count; ++i)
        scale.pitches.emplace_back(Cent(period * i / count));
    KeyMapping mapping;
    mapping.referenceHertz *= std::exp2(moved / 1200.0);
    return ScaleTemperament(scale, mapping);
}

class KeyPitchesTest : public testing::Test {
protected:
    KeyPitchesTest()
    {
        instrument_.setReading(Reading::Musical);
        instrument_.setInstrument(kSteadyProgram);
    }

    void wait(double seconds)
    {
        rendered(synthesizer_, static_cast<std::size_t>(seconds * kLaneRate));
    }

    /// Returns by how many cents what sounds differs from a key of a temperament. Most banks are
    /// slightly out of tune, so it is compared with the key of equal temperament that was played.
    double errorOf(const Temperament& temperament, int key, int sounding)
    {
        // Pitches are counted an octave higher than they sound: see docs/decisions.md, 1.
        const double wanted = temperament.pitchAt(key) / 2.0;
        const double played = equal.pitchAt(sounding) / 2.0;
        const double hertz =
            measuredHertz(rendered(synthesizer_, kLaneRate).left, kLaneRate, wanted);
        return cents(hertz, wanted) - bankErrorOf(sounding, played);
    }

    double bankErrorOf(int sounding, double hertz)
    {
        const auto known = bankErrors_.find(sounding);
        if (known != bankErrors_.end())
            return known->second;
        Synthesizer other(kLaneRate, {kBank});
        other.midiEvent(0xC0, kSteadyProgram, 0);
        other.midiEvent(0x90, sounding, 76);
        rendered(other, kLaneRate / 2);
        const double error =
            cents(measuredHertz(rendered(other, kLaneRate).left, kLaneRate, hertz), hertz);
        bankErrors_[sounding] = error;
        return error;
    }

    static int nearestKey(const Temperament& temperament, int key)
    {
        return static_cast<int>(
            std::lround(12.0 * std::log2(temperament.pitchAt(key) / equal.pitchAt(0))));
    }

    std::map<int, double> bankErrors_;
    std::unique_ptr<Synthesizer> device_ =
        std::make_unique<Synthesizer>(kLaneRate, std::vector{kBank});
    Synthesizer& synthesizer_ = *device_;
    MIDIInstrument instrument_{std::move(device_)};
};

} // namespace

TEST_F(KeyPitchesTest, SoundWhereTheTemperamentHasThem)
{
    const double kTritave = 1200.0 * std::log2(3.0);
    std::vector<std::unique_ptr<Temperament>> temperaments;
    for (const auto& [count, period, moved] :
         std::vector<std::tuple<int, double, double>>{{12, 1200.0, 0.0},
                                                      {19, 1200.0, 0.0},
                                                      {31, 1200.0, 0.0},
                                                      {53, 1200.0, 0.0},
                                                      {13, kTritave, 0.0},
                                                      {12, 1200.0, -600.0}})
        temperaments.push_back(equalDivision(count, period, moved).fresh());
    temperaments.push_back(std::make_unique<TransposedTemperament>(
        std::make_unique<Temperament>(Temperament::Meantone()), Transposition{2, 392.0}));
    for (std::size_t i = 0; i < temperaments.size(); ++i) {
        const Temperament& temperament = *temperaments[i];
        for (const int key : {40, 64, 90}) {
            instrument_.tune(temperament, 0, 127);
            instrument_.play(key, 0.6F);
            wait(0.5);
            const int sounding = nearestKey(temperament, key);
            EXPECT_NEAR(errorOf(temperament, key, sounding), 0.0, 0.1) << i << ": struck " << key;
            instrument_.tune(equal, 0, 127);
            wait(0.1);
            EXPECT_NEAR(errorOf(equal, key, sounding), 0.0, 0.2) << i << ": moved " << key;
            instrument_.stop(key);
            wait(1.0);
            EXPECT_EQ(synthesizer_.voices(), 0U) << i << ": " << key;
        }
    }
}

TEST_F(KeyPitchesTest, MoveWithTheTemperamentThoughTheyWereStartedOnAChannel)
{
    const auto nineteen = equalDivision(19, 1200.0);
    for (const int key : {61, 73}) { // of one channel
        instrument_.tune(equal, 0, 127);
        for (const int started : {61, 73})
            instrument_.play(started, 0.6F);
        wait(0.2);
        instrument_.tune(nineteen, 0, 127);
        instrument_.stop(61 + 73 - key);
        wait(1.0);
        EXPECT_NEAR(errorOf(nineteen, key, key), 0.0, 0.1) << key;
        instrument_.tune(equal, 0, 127);
        wait(0.1);
        EXPECT_NEAR(errorOf(equal, key, key), 0.0, 0.1) << key << " moved back";
        instrument_.play(key, 0.6F);
        instrument_.stop(key);
        wait(1.0);
        EXPECT_EQ(synthesizer_.voices(), 0U) << key;
    }
}

TEST_F(KeyPitchesTest, AreAtMostHalfACentOffWhenAllLanesSound)
{
    constexpr int kFirst = 30, kCount = 60;
    const auto scale = equalDivision(31, 1200.0);
    const auto later = equalDivision(32, 1200.0);
    for (const int key : {85, 88, 89}) {
        instrument_.tune(scale, 0, 127);
        for (int other = kFirst; other < kFirst + kCount; ++other)
            instrument_.play(other, 0.6F);
        wait(0.2);
        EXPECT_GE(synthesizer_.voices(), static_cast<std::size_t>(kCount)) << "none is silent";
        for (int other = kFirst; other < kFirst + kCount; ++other)
            if (other != key)
                instrument_.stop(other);
        wait(1.0);
        const int sounding = nearestKey(scale, key);
        EXPECT_NEAR(errorOf(scale, key, sounding), 0.0, 0.55) << key;
        instrument_.tune(later, 0, 127);
        wait(0.1);
        EXPECT_NEAR(errorOf(later, key, sounding), 0.0, 1.05) << key << " moved";
        instrument_.stop(key);
        wait(1.0);
        EXPECT_EQ(synthesizer_.voices(), 0U) << key;
    }
}

} // namespace velmora
