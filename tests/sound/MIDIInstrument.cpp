#include "sound/MIDIInstrument.h"

#include "sound/RecordingMusicDevice.h"
#include "tuning/DynamicTemperament.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Message = std::array<int, 3>;

class MIDIInstrumentTest : public testing::Test {
protected:
    /// The messages since the last look, those of the construction included.
    MidiMessages sent() { return std::exchange(*messages_, {}); }

    /// Without the messages of the construction.
    void SetUp() override { construction_ = sent(); }

    /// The bends that a temperament is given, sent to channels 1 to 8, 12, 10 and 11.
    MidiMessages bends(const Temperament& temperament)
    {
        instrument.tune(temperament, 0, 127);
        return sent();
    }

    std::shared_ptr<MidiMessages> messages_ = std::make_shared<MidiMessages>();
    MIDIInstrument instrument{std::make_unique<RecordingMusicDevice>(messages_)};
    MidiMessages construction_;
};

/// Pitch class 1 at the given cents, the others equal.
Temperament withSecond(double cents)
{
    Temperament temperament;
    for (int i = 0; i < 12; ++i)
        temperament.append(std::make_unique<Cent>(i == 1 ? cents : 100.0 * i));
    return temperament;
}

} // namespace

TEST_F(MIDIInstrumentTest, StartsWithBankZeroThenProgramTwoOnEveryChannel)
{
    MidiMessages expected;
    for (int channel = 0; channel < 16; ++channel)
        expected.push_back({0xB0 | channel, 0, 0});
    for (int channel = 0; channel < 16; ++channel)
        expected.push_back({0xC0 | channel, 2, 0});
    EXPECT_EQ(construction_, expected);
    EXPECT_EQ(instrument.usage, 0);
    EXPECT_TRUE(instrument.hasSubMenu());
}

TEST_F(MIDIInstrumentTest, SelectsAProgramOnEveryChannel)
{
    instrument.setInstrument(127);
    const MidiMessages messages = sent();
    ASSERT_EQ(messages.size(), 16U);
    EXPECT_EQ(messages.front(), (Message{0xC0, 127, 0}));
    EXPECT_EQ(messages.back(), (Message{0xCF, 127, 0}));
}

TEST_F(MIDIInstrumentTest, GivesEachPitchClassItsChannelAndSparesPercussion)
{
    constexpr int channels[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 10, 11};
    for (int key = 0; key < 128; ++key) {
        const int channel = channels[key % 12];
        instrument.play(key, 1.0F);
        instrument.stop(key);
        EXPECT_THAT(sent(),
                    ElementsAre(Message{0x90 | channel, key, 127}, Message{0x80 | channel, key, 0}))
            << "key " << key;
    }
}

TEST_F(MIDIInstrumentTest, SendsTheVelocityThatWasReceived)
{
    for (int velocity = 0; velocity < 128; ++velocity) {
        instrument.play(60, static_cast<float>(velocity / 127.0));
        EXPECT_THAT(sent(), ElementsAre(Message{0x90, 60, velocity}));
    }
}

TEST_F(MIDIInstrumentTest, ScalesAndTruncatesTheVelocityByTheVolumeOfItsOnlyStop)
{
    EXPECT_EQ(instrument.numStops(), 1U);
    EXPECT_EQ(instrument.getVolume(0), 1.0F);
    instrument.setVolume(1, 0.1F);
    EXPECT_EQ(instrument.getVolume(0), 1.0F);
    EXPECT_EQ(instrument.getVolume(1), 0.0F);

    instrument.setVolume(0, 0.5F);
    EXPECT_EQ(instrument.getVolume(0), 0.5F);
    instrument.play(69, 1.0F);
    EXPECT_THAT(sent(), ElementsAre(Message{0x9C, 69, 63}));
}

TEST_F(MIDIInstrumentTest, SendsNothingForAFade)
{
    instrument.fade(0.9);
    EXPECT_THAT(sent(), IsEmpty());
}

TEST_F(MIDIInstrumentTest, BendsNothingInEqualTemperament)
{
    EXPECT_THAT(bends(equal),
                ElementsAre(Message{0xE1, 0, 64}, Message{0xE2, 0, 64}, Message{0xE3, 0, 64},
                            Message{0xE4, 0, 64}, Message{0xE5, 0, 64}, Message{0xE6, 0, 64},
                            Message{0xE7, 0, 64}, Message{0xE8, 0, 64}, Message{0xEC, 0, 64},
                            Message{0xEA, 0, 64}, Message{0xEB, 0, 64}));
}

TEST_F(MIDIInstrumentTest, BendsToTheCentsOfTheTemperamentFlooredToAStep)
{
    const MidiMessages meantone = bends(Temperament::Meantone());
    ASSERT_EQ(meantone.size(), 11U);
    EXPECT_EQ(meantone[3], (Message{0xE4, 79, 59})) << "E is 13.68629 cents flat";
    for (const auto& [status, low, high] : meantone) {
        const int channel = status & 0x0F;
        const int pitchClass = channel == 12 ? 9 : channel;
        const double cents = Temperament::Meantone().getTuning(pitchClass).cent();
        const double bent = 100.0 * pitchClass + (low + 128 * high - 8192) * 200.0 / 8192;
        EXPECT_LE(bent, cents + 1e-9) << "pitch class " << pitchClass;
        EXPECT_GT(bent, cents - 200.0 / 8192) << "pitch class " << pitchClass;
    }
}

TEST_F(MIDIInstrumentTest, BendsAtTheEdgesOfTheRange)
{
    const struct {
        double cents;
        int low;
        int high;
    } rows[] = {
        {100.0 - 200.0, 0, 0},   {100.0 + 199.99, 127, 127}, {100.0 + 200.0, 0, 128},
        {100.0 - 3.125, 0, 63},  {100.0 - 0.01, 127, 63},    {100.0 + 3.125, 0, 65},
        {100.0 - 400.0, 0, -64},
    };
    for (const auto& row : rows)
        EXPECT_EQ(bends(withSecond(row.cents)).front(), (Message{0xE1, row.low, row.high}))
            << row.cents << " cents";
}

TEST_F(MIDIInstrumentTest, TakesAPitchInHertzForTheTonic)
{
    Temperament hertz;
    for (int i = 0; i < 12; ++i)
        hertz.append(std::make_unique<Freq>(440.0));
    // 100 cents down.
    EXPECT_EQ(bends(hertz).front(), (Message{0xE1, 0, 32}));
}

TEST_F(MIDIInstrumentTest, IsRetunedByTheDynamicTemperamentBeforeTheKeySounds)
{
    DynamicTemperament dynamic;
    dynamic.isomorph(instrument, 2);
    const MidiMessages messages = sent();
    ASSERT_EQ(messages.size(), 12U);
    // 128/125 is 41.06 cents, 58.94 below the equal semitone.
    EXPECT_EQ(messages.front(), (Message{0xE1, 17, 45}));
    EXPECT_EQ(messages.back(), (Message{0x91, 49, 127}));
}
