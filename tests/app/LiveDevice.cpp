#include "app/LiveDevice.h"

#include "app/AppDelegate.h"
#include "audio/Synthesizer.h"
#include "preferences/Preferences.h"
#include "preferences/settings.h"
#include "sound/ALInstrument.h"
#include "support/Bank.h"
#include "support/Pitch.h"
#include "support/RecordingInstrument.h"
#include "support/Sine.h"
#include "support/Stereo.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace velmora {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// Also records bends and the soft pedal.
class BendingInstrument : public RecordingInstrument {
public:
    explicit BendingInstrument(Calls& calls) : RecordingInstrument(calls), calls_(calls) {}

    void bend(double cents) override { calls_.push_back(fmt::format("bend {:.1f}", cents)); }
    void setSoft(bool soft) override { calls_.emplace_back(soft ? "soft" : "not soft"); }

private:
    Calls& calls_;
};

/// Two devices that play one instrument.
class LiveDeviceTest : public testing::Test {
protected:
    LiveDeviceTest()
    {
        app_.tunings().addBuiltins();
        app_.setInstrument(instrument_, "Recorder");
        calls_.clear();
    }

    ~LiveDeviceTest() override
    {
        for (const char* key : {"PlainReading", "Transposition", "LearnedControls"})
            resetPref(key);
    }

    /// Returns the calls that the instrument receives for the messages.
    Calls send(const std::vector<Bytes>& messages) { return send(first_, messages); }
    Calls send(LiveDevice& device, const std::vector<Bytes>& messages)
    {
        for (const Bytes& message : messages)
            device.receive(message, 1.0);
        return std::exchange(calls_, {});
    }

    Calls calls_;
    BendingInstrument instrument_{calls_};
    AppDelegate app_;
    LiveDevice first_{app_, 0}, second_{app_, 1};
};

} // namespace

TEST_F(LiveDeviceTest, ASustainPedalHoldsTheKeysOfItsChannelAndDevice)
{
    EXPECT_EQ(send({{0x90, 60, 127}, {0xB0, 64, 64}, {0x80, 60, 0}}), (Calls{"play 60 1.00"}));
    EXPECT_EQ(app_.player().liveKeys().state(60), 0) << "sounds on, but is released by hand";
    EXPECT_EQ(send({{0x91, 62, 127}, {0x81, 62, 0}}), (Calls{"play 62 1.00", "stop 62"}));
    EXPECT_EQ(send(second_, {{0x90, 64, 127}, {0x80, 64, 0}, {0xB0, 64, 127}, {0xB0, 64, 0}}),
              (Calls{"play 64 1.00", "stop 64"}))
        << "another device";
    EXPECT_EQ(send({{0x90, 60, 127}, {0xB0, 64, 63}}), (Calls{"play 60 1.00"}))
        << "struck again and held, so the pedal stops nothing";
    EXPECT_EQ(send({{0x80, 60, 0}}), (Calls{"stop 60"}));
}

TEST_F(LiveDeviceTest, SostenutoHoldsOnlyTheKeysThatWereDown)
{
    send({{0x90, 60, 127}, {0x90, 62, 127}, {0x80, 62, 0}, {0xB0, 66, 127}, {0xB0, 66, 90}});
    EXPECT_EQ(send({{0x90, 64, 127}, {0xB0, 66, 100}, {0x80, 64, 0}, {0x80, 60, 0}}),
              (Calls{"play 64 1.00", "stop 64"}));
    EXPECT_EQ(send({{0xB0, 123, 0}}), Calls()) << "the pedal goes on holding";
    EXPECT_EQ(send({{0xB0, 121, 0}, {0xB0, 120, 0}}), (Calls{"stop 60", "silence"}))
        << "a reset lifts it";
}

TEST_F(LiveDeviceTest, NotesAreSoftWhileAnyDeviceHoldsItsSoftPedal)
{
    EXPECT_EQ(send({{0xB0, 67, 127}, {0xB1, 67, 127}}), Calls{"soft"});
    EXPECT_EQ(send(second_, {{0xB0, 67, 127}, {0xB0, 67, 0}}), (Calls{"soft", "soft"}));
    EXPECT_EQ(send({{0xB0, 67, 0}, {0xB1, 67, 0}}), Calls{"not soft"});
}

TEST_F(LiveDeviceTest, TheWheelBendsBothKindsOfInstrumentByItsRange)
{
    constexpr std::size_t kRate = 48000;
    constexpr int kKey = 69; // 440 Hz
    MIDIInstrument ocarina(std::make_unique<Synthesizer>(kRate, std::vector{kBank}));
    ocarina.setInstrument(kSteadyProgram);
    ALInstrument organ;
    auto& sound = organ.sounds["a"] = std::make_unique<Sound>(organ.renderer(), sine(440.0, 20.0));
    InstrumentStop& stop = organ.appendStop("");
    stop.volume = 0.5F;
    stop.samples[kKey].setBuffer(*sound, equal.getPitch(kKey));
    for (Instrument* instrument : std::initializer_list<Instrument*>{&ocarina, &organ}) {
        app_.setInstrument(*instrument, "");
        send({{0x90, kKey, 127}});
        const auto centsAt = [&](std::uint8_t low, std::uint8_t high, double expected) {
            send({{0xE0, low, high}});
            rendered(*instrument->source(), kRate / 2);
            const auto heard = rendered(*instrument->source(), kRate).left;
            return cents(measuredHertz(heard, kRate, 440.0 * std::exp2(expected / 1200.0)), 440.0);
        };
        const double centre = centsAt(0, 64, 0.0);
        EXPECT_NEAR(centsAt(127, 127, 200.0) - centre, 200.0, 1.0);
        EXPECT_NEAR(centsAt(0, 0, -200.0) - centre, -200.0, 1.0);
        EXPECT_NEAR(centsAt(0, 64, 0.0), centre, 0.1);
    }
    app_.setInstrument(instrument_, "Recorder");
    app_.player().remove(ocarina);
    app_.player().remove(organ);
}

TEST_F(LiveDeviceTest, ThePlainReadingIsFedDirectly)
{
    app_.playing().setTransposition(5);
    send({{0x90, 60, 127}, {0xB0, 64, 127}, {0xB0, 67, 127}, {0xE0, 0, 127}});
    app_.playing().usePlainReading();
    EXPECT_EQ(send({{0xE0, 7, 0}}), (Calls{"stop 65", "not soft", "bend 0.0", "volume 0 0.00"}))
        << "nothing hangs, and the bend is read as a controller";
    EXPECT_EQ(send({{0x90, 60, 127}, {0x80, 60, 0}, {0xC0, 5}, {0xF0, 7, 127}, {0xD0, 7}}),
              (Calls{"play 60 1.00", "stop 60", "volume 0 1.00"}));
}

TEST_F(LiveDeviceTest, WhatAControlHasLearnedIsRemembered)
{
    using Kind = LearnedAction::Kind;
    const MidiControl key{MidiControl::Kind::Key, 15, 36},
        fader{MidiControl::Kind::Controller, 0, 20};
    app_.learning().listen({Kind::Play});
    send({{0x9F, 36, 127}});
    app_.learning().listen({Kind::Volume, 7});
    send({{0xB0, 20, 1}});
    QCoreApplication::processEvents();
    MidiLearning next;
    EXPECT_EQ(next.getControl({Kind::Play}), key);
    EXPECT_EQ(next.getControl({Kind::Volume, 7}), fader);
    EXPECT_EQ(next.controls().get(key), LearnedAction{Kind::Play});
    app_.learning().listen({Kind::Play});
    send({{0xB0, 20, 1}});
    QCoreApplication::processEvents();
    EXPECT_EQ(app_.learning().controls().get(key), LearnedAction()) << "another control took over";
    EXPECT_EQ(app_.learning().getControl({Kind::Volume, 7}), std::nullopt);
    app_.learning().forget({Kind::Play});
    EXPECT_EQ(send({{0x9F, 36, 127}, {0xB0, 20, 127}}), (Calls{"play 36 1.00"}));
    EXPECT_FALSE(MidiLearning().getControl({Kind::Play}));

    setPreference("LearnedControls",
                  QStringList{"key 1 128 play 0", "controller 17 1 play 0", "key 1 1 dance 0",
                              "controller 1 120 stop 0", "key 1 60 silence 0"});
    const MidiLearning damaged;
    EXPECT_FALSE(damaged.getControl({Kind::Play}) || damaged.getControl({Kind::Stop}));
    EXPECT_TRUE(damaged.getControl({Kind::Silence}));
}

} // namespace velmora
