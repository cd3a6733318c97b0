#include "app/AppDelegate.h"

#include "app/Meters.h"
#include "base/Clock.h"
#include "midi/messages.h"
#include "preferences/Preferences.h"
#include "support/RecordingInstrument.h"
#include "tuning/PureTemperament.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <thread>

namespace velmora {

namespace {

class AppDelegateTest : public testing::Test {
protected:
    AppDelegateTest()
    {
        app_.tunings().addBuiltins();
        app_.tunings().put(TuningDocument::makeBuiltin("Dynamic"));
    }

    /// Expects the calls that the instrument has received since the last check.
    void expectCalls(const Calls& calls) { EXPECT_EQ(std::exchange(calls_, {}), calls); }

    const Temperament* current()
    {
        const Temperament* temperament = nullptr;
        app_.player().with([&](Instrument&, Temperament& now) { temperament = &now; });
        return temperament;
    }

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    AppDelegate app_;
};

} // namespace

TEST_F(AppDelegateTest, TunesAndPlaysKeysInTheSelectedTuning)
{
    const double began = getTime();
    app_.keyOn(60, 0.5F);
    const LiveKeys& keys = app_.player().liveKeys();
    EXPECT_EQ(keys.state(60), kPressed) << "even without an instrument";
    app_.keyOff(60);
    EXPECT_EQ(keys.state(60), 0);
    std::uint64_t place = 0;
    const auto pressed = keys.events().read(place), released = keys.events().read(place);
    ASSERT_TRUE(pressed && released);
    EXPECT_TRUE(began <= pressed->time && pressed->time <= released->time);
    app_.setInstrument(instrument_, "Recorder");
    app_.keyOn(127, 2.0F);
    app_.keyOff(127);
    expectCalls({"tune 0 127", "play 127 1.00", "stop 127"});
    EXPECT_EQ(keys.velocity(127), 1.0F);
    EXPECT_TRUE(app_.tunings().select("Dynamic"));
    const Temperament* before = current();
    EXPECT_FALSE(app_.tunings().select("dynamic"));
    app_.tunings().put(TuningDocument::makeBuiltin("Dynamic"));
    expectCalls({"tune 0 127"});
    app_.keyOn(0, 1.0F); // still in the earlier tuning of that name
    expectCalls({"tune 0 127", "play 0 1.00"});
    for (const int key : {-1, 128, 255}) {
        app_.keyOn(key, 1.0F);
        app_.keyOff(key);
    }
    expectCalls({});
    EXPECT_TRUE(app_.tunings().select("Dynamic"));
    EXPECT_NE(current(), before);
}

TEST_F(AppDelegateTest, FadesTheInstrumentAndTheTemperament)
{
    app_.player().fade(); // without an instrument
    app_.setInstrument(instrument_, "Recorder");
    app_.tunings().select("Dynamic");
    app_.player().isomorph(-1);
    EXPECT_NEAR(current()->getTuning(0).cent(), -41.06, 0.01);
    calls_.clear();
    app_.player().fade();
    expectCalls({"fade 0.9"});
    EXPECT_EQ(current()->getTuning(0).cent(), 0.0) << "returns home once everything has faded";
}

TEST_F(AppDelegateTest, DynamicStartsAtHomeEachTimeItIsSelected)
{
    app_.setInstrument(instrument_, "Recorder");
    app_.tunings().select("Dynamic");
    app_.player().isomorph(2);
    EXPECT_NEAR(current()->getTuning(1).cent(), 41.06, 0.01);
    app_.tunings().select("Equal");
    app_.tunings().select("Dynamic");
    EXPECT_EQ(current()->getTuning(1).cent(), 76.049);
}

TEST_F(AppDelegateTest, FollowsThePreferencesOfTheTunings)
{
    class Gliding : public RecordingInstrument {
    public:
        using RecordingInstrument::RecordingInstrument;
        void setGlide(const Glide& glide) override { now = glide; }
        Glide now;
    };
    Gliding first(calls_);
    Gliding later(calls_);
    app_.setInstrument(first, "First");
    app_.tunings().select("Pure");
    app_.keyOn(60, 1.0F);
    const Temperament* before = current();
    setPrefInt("GlideTime", 200);
    app_.playing().read();
    app_.setInstrument(later, "Later");
    EXPECT_EQ(current(), before) << "only how it glides has changed";
    EXPECT_EQ(first.now, (Glide{0.2, true}));
    EXPECT_EQ(later.now, (Glide{0.2, true}));

    setPrefBool("GlideSounding", false);
    setPrefInt("CorrectionTime", 70);
    setPrefInt("Drift", static_cast<int>(Drift::Free));
    app_.playing().read();
    EXPECT_EQ(later.now, (Glide{0.2, false}));
    const auto correction = [this] {
        const auto& pure = dynamic_cast<const PureTemperament&>(*app_.tunings().untransposed());
        return pure.follower().settings().correction;
    };
    EXPECT_EQ(correction(), 0.07);
    setPrefBool("CorrectSpelling", false);
    app_.playing().usePlainReading();
    EXPECT_EQ(later.now, Glide{}) << "the plain reading jumps";
    EXPECT_EQ(correction(), 0.0);
    for (const char* key :
         {"GlideTime", "GlideSounding", "CorrectionTime", "Drift", "CorrectSpelling"})
        resetPref(key);
}

TEST_F(AppDelegateTest, ReceivedEventsReachTheMainThreadInOrder)
{
    Calls seen, sounded, told{"volume 1 1.00", "keys"}; // the keys as they are when it listens
    app_.setInstrument(instrument_, "Recorder");
    expectCalls({"tune 0 127"});
    QObject::connect(&app_, &AppDelegate::midiInputReceived, [&] { seen.push_back("keys"); });
    QObject::connect(&app_, &AppDelegate::volumeMoved, [&](std::size_t slider, float volume) {
        seen.push_back(fmt::format("volume {} {:.2f}", slider, volume));
    });
    for (int i = 0; i < 100; ++i) {
        if (i > 0)
            told.push_back("volume 1 1.00");
        sounded.insert(sounded.end(), {"play 60 1.00", "volume 1 1.00", "stop 60"});
    }
    std::thread([&] {
        const std::uint8_t bytes[] = {midi::kNoteOn,  60, 127, midi::kControlChange, 11, 127,
                                      midi::kNoteOff, 60, 0};
        const MidiPacket packet = bytes;
        for (int i = 0; i < 100; ++i)
            midiRead({&packet, 1}, app_);
    }).join();
    expectCalls(sounded);
    EXPECT_EQ(seen, Calls()) << "not on the receive thread";
    QCoreApplication::processEvents();
    EXPECT_EQ(seen, told);
}

TEST_F(AppDelegateTest, MetersReadWhatHappenedSinceTheLastReading)
{
    Meters meters(app_);
    app_.player().keyOn(60, 0.5F, kMouse, getTime() - 0.25);
    app_.player().keyOff(60);
    app_.midiDevices().arrived({0, "Keys"});
    const std::array<std::uint8_t, 3> message{midi::kNoteOn, 61, 100};
    meters.read(); // the first messages of a device have no time to be compared with
    app_.player().keyOn(62, 0.5F, kMouse, getTime() - 0.25);
    for (int i = 0; i < 1000; ++i)
        app_.midiDevices().received(0, message, getTime());
    const MeterReading reading = meters.read();
    EXPECT_NEAR(reading.latency.input, 0.25, 0.2);
    ASSERT_EQ(reading.devices.size(), 1U);
    EXPECT_EQ(reading.devices[0].name, "Keys");
    EXPECT_GT(reading.devices[0].messagesPerSecond, 100.0);
    app_.midiDevices().departed({0, "Keys"});
    const MeterReading quiet = meters.read();
    EXPECT_EQ(quiet.latency.input, 0.0);
    EXPECT_TRUE(quiet.devices.empty());
    EXPECT_EQ(app_.player().liveKeys().state(61), 0) << "a device that vanishes releases its keys";
}

} // namespace velmora
