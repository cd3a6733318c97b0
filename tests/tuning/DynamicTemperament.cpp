#include "tuning/DynamicTemperament.h"

#include "sound/Instrument.h"

#include <gmock/gmock.h>

#include <string>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Writes down what it is told, with the hertz of a chosen key at the time of a retune.
class RecordingInstrument : public Instrument {
public:
    float getVolume(std::size_t /*stop*/) const override { return 0.0F; }
    void setVolume(std::size_t /*stop*/, float /*volume*/) override {}
    std::size_t numStops() const override { return 0; }
    void stop(int /*key*/) override {}
    void play(int key, float velocity) override
    {
        calls.push_back("play " + std::to_string(key) + " " + std::to_string(velocity));
    }
    void tune(const Temperament& temperament, int lo, int hi) override
    {
        calls.push_back("tune " + std::to_string(lo) + " " + std::to_string(hi));
        tuned = &temperament;
    }

    std::vector<std::string> calls;
    const Temperament* tuned = nullptr;
};

class DynamicTemperamentTest : public testing::Test {
protected:
    double cents(unsigned long key) const { return dynamic.getTuning(key).cent(); }

    void fade(int ticks)
    {
        for (int i = 0; i < ticks; ++i)
            dynamic.fade(0.9);
    }

    DynamicTemperament dynamic;
    RecordingInstrument instrument;
};

constexpr double kDiesis = 41.05886;
constexpr double kRounding = 1e-5;

} // namespace

TEST_F(DynamicTemperamentTest, StartsAsMeantone)
{
    const Temperament meantone = Temperament::Meantone();
    for (unsigned long key = 0; key < 128; ++key)
        EXPECT_EQ(dynamic.getPitch(key), meantone.getPitch(key)) << "key " << key;
}

TEST_F(DynamicTemperamentTest, OffersALowerAndAnUpperNeighbourOfEachPitchClass)
{
    constexpr double expected[12][3] = {
        {-41.05886, 0.0, 41.05886},        {41.05886, 76.049, 117.10786},
        {152.098, 193.15686, 234.21572},   {269.20586, 310.26471, 351.32357},
        {351.32357, 386.31371, 427.37257}, {462.36271, 503.42157, 544.48043},
        {544.48043, 579.47057, 620.52943}, {655.51957, 696.57843, 737.63729},
        {737.63729, 772.62743, 813.68629}, {848.67643, 889.73529, 930.79414},
        {965.78428, 1006.84314, 1047.902}, {1047.902, 1082.89214, 1123.951},
    };
    for (int pitchClass = 0; pitchClass < 12; ++pitchClass)
        for (int neighbour = -1; neighbour <= 1; ++neighbour) {
            dynamic.isomorph(instrument, 3 * pitchClass + neighbour);
            EXPECT_NEAR(cents(60 + static_cast<unsigned>(pitchClass)),
                        expected[pitchClass][neighbour + 1], kRounding)
                << "pitch class " << pitchClass << ", neighbour " << neighbour;
        }
}

TEST_F(DynamicTemperamentTest, IsomorphRetunesThenPlaysTheSpelling)
{
    dynamic.isomorph(instrument, 2);
    EXPECT_THAT(instrument.calls, ElementsAre("tune 0 127", "play 49 1.000000"));
    EXPECT_EQ(instrument.tuned, &dynamic);
    EXPECT_NEAR(cents(61), kDiesis, kRounding);

    instrument.calls.clear();
    dynamic.isomorph(instrument, 2 + 36);
    EXPECT_EQ(instrument.calls.back(), "play 61 1.000000") << "an octave up";
    EXPECT_NEAR(cents(61), kDiesis, kRounding);

    dynamic.isomorph(instrument, -1);
    EXPECT_EQ(instrument.calls.back(), "play 48 1.000000");
    EXPECT_NEAR(cents(48), -kDiesis, kRounding);
    dynamic.isomorph(instrument, 0);
    EXPECT_EQ(cents(48), 0.0);
}

TEST_F(DynamicTemperamentTest, AStruckKeyTakesItsPitchClassHomeAndRetunesOnce)
{
    dynamic.isomorph(instrument, 2);
    instrument.calls.clear();
    dynamic.setup(instrument, 62, 1.0F);
    EXPECT_NEAR(cents(61), kDiesis, kRounding) << "another pitch class has no say";
    dynamic.setup(instrument, 61, 0.5F);
    EXPECT_EQ(cents(61), 76.049);
    dynamic.setup(instrument, 61, 0.5F);
    EXPECT_THAT(instrument.calls, ElementsAre("tune 0 127", "tune 0 127", "tune 0 127"));
}

TEST_F(DynamicTemperamentTest, SilenceAnchorsCAtHome)
{
    dynamic.isomorph(instrument, 4);
    dynamic.isomorph(instrument, -1);
    fade(1);
    EXPECT_EQ(cents(60), 0.0) << "C goes home when nothing sounds";
    EXPECT_EQ(cents(61), 117.10786) << "the others wait to be struck";
    EXPECT_THAT(instrument.tuned, &dynamic);

    instrument.calls.clear();
    fade(100);
    EXPECT_THAT(instrument.calls, IsEmpty()) << "a fade sounds and tunes nothing";
}

TEST_F(DynamicTemperamentTest, ANoteAtFullVelocityFadesAtThe38thTick)
{
    dynamic.isomorph(instrument, -1);
    dynamic.setup(instrument, 62, 1.0F);
    fade(37);
    EXPECT_NEAR(cents(60), -kDiesis, kRounding) << "D still holds";
    fade(1);
    EXPECT_EQ(cents(60), 0.0);
}
