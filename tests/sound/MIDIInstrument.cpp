#include "sound/MIDIInstrument.h"

#include "audio/MusicDevice.h"
#include "tuning/Temperament.h"

#include <gmock/gmock.h>

namespace velmora {

using testing::ElementsAre;
using Message = std::array<int, 3>;
using Messages = std::vector<Message>;

namespace {

struct RecordingMusicDevice : public MusicDevice {
    explicit RecordingMusicDevice(Messages& list) : messages(list) {}
    void midiEvent(int status, int low, int high) override
    {
        messages.push_back({status, low, high});
    }
    void bend(double cents) override { bent = cents; }
    Messages& messages;
    double bent = 0.0;
};

struct MIDIInstrumentTest : public testing::Test {
    Messages messages;
    MIDIInstrument instrument{std::make_unique<RecordingMusicDevice>(messages)};
};

constexpr int kChannelOf[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 12, 10, 11};

} // namespace

TEST_F(MIDIInstrumentTest, StartsWithBankZeroAndProgramTwoOnEveryChannel)
{
    instrument.setInstrument(127);
    Messages expected;
    for (const auto& [status, data] : {std::pair(0xB0, 0), {0xC0, 2}, {0xC0, 127}})
        for (int channel = 0; channel < 16; ++channel)
            expected.push_back({status | channel, data, 0});
    EXPECT_EQ(messages, expected);
}

TEST_F(MIDIInstrumentTest, ReleasesAKeyThatIsStruckAgainAsADrum)
{
    instrument.setPart(1, {});
    instrument.playOn(1, 60, 1.0F);
    instrument.setPart(1, {.preset = PartSound::Preset{.isPercussion = true}});
    messages.clear();
    instrument.playOn(1, 60, 1.0F);
    instrument.stopOn(1, 60);
    EXPECT_THAT(messages,
                ElementsAre(Message{0x80, 60, 0}, Message{0x99, 60, 127}, Message{0x89, 60, 0}));
}

TEST_F(MIDIInstrumentTest, PlaysEachPitchClassOnAChannelOfItsOwnAndAvoidsPercussion)
{
    for (int key = 0; key < 128; ++key) {
        messages.clear();
        instrument.play(key, static_cast<float>(key / 127.0));
        instrument.stop(key);
        const int channel = kChannelOf[key % 12];
        EXPECT_THAT(messages, ElementsAre(Message{0x90 | channel, key, key},
                                          Message{0x80 | channel, key, 0}));
    }
    instrument.setVolume(1, 0.1F);
    EXPECT_EQ(instrument.getVolume(0), 1.0F) << "there is only one stop";
    EXPECT_EQ(instrument.getVolume(1), 0.0F);
    instrument.setVolume(0, 0.5F);
    instrument.play(69, 1.0F);
    EXPECT_EQ(messages.back(), (Message{0x9C, 69, 63})) << "truncated, not rounded";
}

TEST_F(MIDIInstrumentTest, PlaysSofterNotesThatAreNeverSilentWhileTheSoftPedalIsDown)
{
    for (const auto& [value, softer] : {std::pair(127, 88), {10, 7}, {1, 1}, {0, 0}}) {
        for (const bool soft : {true, false}) {
            instrument.setSoft(soft);
            instrument.play(60, static_cast<float>(value) / 127.0F);
            EXPECT_EQ(messages.back(), (Message{0x90, 60, soft ? softer : value}));
        }
    }
}

TEST_F(MIDIInstrumentTest, BendsItsDeviceAndTheNextOne)
{
    instrument.bend(-250.0);
    auto next = std::make_unique<RecordingMusicDevice>(messages);
    const RecordingMusicDevice& second = *next;
    const auto first = instrument.exchangeDevice(std::move(next));
    EXPECT_EQ(dynamic_cast<RecordingMusicDevice&>(*first).bent, -250.0);
    EXPECT_EQ(second.bent, -250.0);
}

TEST_F(MIDIInstrumentTest, BendsToTheTemperamentRoundedDownToAStep)
{
    for (const auto& [deviation, low, high] : std::vector<std::tuple<double, int, int>>{
             {0.0, 0, 64}, {-13.68629, 79, 59}, {-0.01, 127, 63}, {-400.0, 0, -64}}) {
        Temperament temperament;
        Messages expected;
        for (int i = 0; i < 12; ++i) {
            temperament.append(std::make_unique<Cent>(100.0 * i + deviation));
            if (i > 0)
                expected.push_back({0xE0 | kChannelOf[i], low, high});
        }
        messages.clear();
        instrument.tune(temperament, 0, 127);
        EXPECT_EQ(messages, expected) << deviation << " cents";
    }
}

} // namespace velmora
