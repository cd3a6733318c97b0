#include "app/LiveDevices.h"

#include "app/AppDelegate.h"
#include "preferences/Preferences.h"
#include "support/RecordingInstrument.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace velmora {

namespace {

class LiveDevicesTest : public testing::Test {
protected:
    LiveDevicesTest()
    {
        app_.tunings().addBuiltins();
        app_.setInstrument(instrument_, "Recorder");
        devices_.arrived(keys_);
        calls_.clear();
    }

    ~LiveDevicesTest() override { resetPref("MidiDevices"); }

    /// Returns the calls that the instrument receives for a message.
    Calls send(const std::vector<std::uint8_t>& message)
    {
        devices_.received(keys_.number, message, 1.0);
        return std::exchange(calls_, {});
    }

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    AppDelegate app_;
    LiveDevices& devices_ = app_.midiDevices();
    MidiDevice keys_{3, "Keys"};
};

const Calls kNothing;

} // namespace

TEST_F(LiveDevicesTest, ADeviceThatVanishesReleasesItsKeys)
{
    EXPECT_EQ(send({0x90, 60, 127}), Calls{"play 60 1.00"});
    EXPECT_EQ(send({0x95, 62, 127}), Calls{"play 62 1.00"});
    app_.keyOn(62, 1.0F);
    calls_.clear();
    devices_.departed(keys_);
    EXPECT_EQ(calls_, Calls{"stop 60"}) << "62 is held with the mouse";
    EXPECT_EQ(app_.player().liveKeys().state(60), 0);
    EXPECT_EQ(devices_.devices().size(), 0);
    calls_.clear();
    devices_.arrived(keys_);
    EXPECT_EQ(send({0x80, 60, 0}), kNothing);
    EXPECT_EQ(devices_.devices().at(0).messages, 3);
}

TEST_F(LiveDevicesTest, SettingsApplyAtOnceAndAreRememberedByName)
{
    devices_.setSettings("Keys", {.keyOffset = -12, .channel = 0, .isOn = true});
    EXPECT_EQ(send({0x90, 60, 127}), Calls{"play 48 1.00"});
    EXPECT_EQ(send({0xB0, 64, 127}), kNothing) << "the sustain pedal";
    devices_.setSettings("Keys", {.keyOffset = -12, .channel = 0, .isOn = false});
    EXPECT_EQ(std::exchange(calls_, {}), Calls{"stop 48"});
    EXPECT_EQ(send({0x80, 60, 0}), kNothing);
    EXPECT_EQ(send({0x90, 61, 127}), kNothing) << "off";

    AppDelegate later;
    const KnownDevice remembered = later.midiDevices().devices().at(0);
    EXPECT_EQ(remembered.name, "Keys");
    EXPECT_FALSE(remembered.isConnected);
    EXPECT_EQ(remembered.settings, (DeviceSettings{.keyOffset = -12, .channel = 0, .isOn = false}));
    later.midiDevices().setSettings("Keys", {});
    EXPECT_EQ(later.midiDevices().devices().size(), 0) << "nothing to remember";
}

TEST_F(LiveDevicesTest, ADeviceThatIsSwitchedOffWhileItPlaysHoldsNoKey)
{
    std::atomic<int> messages{0};
    const std::jthread playing([&](const std::stop_token& stop) {
        for (const std::vector<std::uint8_t> press{0x90, 60, 127}; !stop.stop_requested();
             ++messages)
            devices_.received(keys_.number, press, 1.0);
    });
    for (int i = 0; i < 300; ++i) {
        devices_.setSettings("Keys", {.isOn = true});
        devices_.setSettings("Keys", {.isOn = false});
        for (const int before = messages; messages < before + 2;)
            std::this_thread::yield();
        ASSERT_EQ(app_.player().liveKeys().state(60), 0) << i;
    }
}

} // namespace velmora
