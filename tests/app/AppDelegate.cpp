#include "app/AppDelegate.h"

#include "sound/KeyTables.h"
#include "support/RecordingInstrument.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

#include <fstream>
#include <thread>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class AppDelegateTest : public testing::Test {
protected:
    void SetUp() override
    {
        for (auto& state : noteStates)
            state = 0;
        app_.makeBuiltinTunings();
    }

    /// What the instrument was told since the last look.
    Calls calls() { return std::exchange(calls_, {}); }

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    AppDelegate app_;
};

/// Sees how the temperament stands when it is told to fade.
class WatchfulInstrument : public RecordingInstrument {
public:
    WatchfulInstrument(Calls& calls, AppDelegate& app)
        : RecordingInstrument(calls), seen_(calls), app_(app)
    {
    }

    void fade(double factor) override
    {
        seen_.push_back(fmt::format("fade {}, C at {:.2f}", factor,
                                    app_.getTemperament()->getTuning(0).cent()));
    }

private:
    Calls& seen_;
    AppDelegate& app_;
};

/// A tuning file in which every pitch class lies so many cents above C.
std::unique_ptr<TuningDocument> flatTuning(const std::string& name, double cents)
{
    const auto path = std::filesystem::path(testing::TempDir()) / name;
    std::ofstream file(path);
    file << "a scale\n12\n";
    for (int i = 0; i < 12; ++i)
        file << fmt::format("{:.1f}\n", cents);
    file.close();
    auto document = std::make_unique<TuningDocument>();
    EXPECT_TRUE(document->readFromURL(path, "Scale")) << document->errorString();
    return document;
}

} // namespace

TEST_F(AppDelegateTest, KeysAreHeldAlsoWithoutAnInstrument)
{
    app_.keyOn(60, 0.5F);
    EXPECT_EQ(noteStates[60], 1);
    EXPECT_EQ(noteVelocities[60], 0.5F);
    app_.keyOff(60);
    EXPECT_EQ(noteStates[60], 0);
    EXPECT_EQ(noteVelocities[60], 0.5F) << "stays";
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AppDelegateTest, KeysSoundOnceTheDynamicTemperamentHasTunedThem)
{
    app_.setInstrument(instrument_);
    EXPECT_THAT(calls(), ElementsAre("tune 0 127")) << "as it becomes the current one";
    app_.keyOn(127, 0.5F);
    app_.keyOff(127);
    EXPECT_THAT(calls(), ElementsAre("play 127 0.50", "stop 127"));

    app_.putTuning(TuningDocument::initBuiltin("Dynamic"));
    EXPECT_TRUE(app_.selectTuning("Dynamic"));
    EXPECT_THAT(calls(), ElementsAre("tune 0 127"));
    app_.keyOn(0, 1.0F);
    EXPECT_THAT(calls(), ElementsAre("tune 0 127", "play 0 1.00"));
    for (const int key : {-1, 128, 255})
        app_.keyOn(key, 1.0F), app_.keyOff(key);
    EXPECT_THAT(calls(), IsEmpty()) << "beyond the keyboard";
}

TEST_F(AppDelegateTest, FadesTheInstrumentThenTheTemperament)
{
    app_.loop(); // without an instrument
    WatchfulInstrument watchful(calls_, app_);
    app_.setInstrument(watchful);
    app_.putTuning(TuningDocument::initBuiltin("Dynamic"));
    app_.selectTuning("Dynamic");
    app_.getTemperament()->isomorph(watchful, -1);
    calls();
    app_.loop();
    EXPECT_THAT(calls(), ElementsAre("fade 0.9, C at -41.06"));
    EXPECT_EQ(app_.getTemperament()->getTuning(0).cent(), 0.0) << "comes home once all has faded";
}

TEST_F(AppDelegateTest, KeepsTheTuningWhereNoneHasTheName)
{
    app_.setInstrument(instrument_);
    EXPECT_TRUE(app_.selectTuning("Quartercomma Meantone"));
    calls();
    const Temperament* before = app_.getTemperament();
    EXPECT_FALSE(app_.selectTuning("quartercomma meantone"));
    EXPECT_EQ(app_.getTemperament(), before);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AppDelegateTest, ATuningTakesTheNameOfAnother)
{
    app_.setInstrument(instrument_);
    app_.putTuning(flatTuning("same.scl", 100.0));
    ASSERT_TRUE(app_.selectTuning("same.scl"));
    app_.putTuning(flatTuning("same.scl", 200.0));
    app_.keyOn(61, 1.0F);
    EXPECT_NEAR(app_.getTemperament()->getTuning(1).cent(), 100.0, 1e-9) << "still the current one";
    ASSERT_TRUE(app_.selectTuning("same.scl"));
    EXPECT_NEAR(app_.getTemperament()->getTuning(1).cent(), 200.0, 1e-9);
}

TEST_F(AppDelegateTest, WhatWasReceivedReachesTheMainThreadInOrder)
{
    app_.setInstrument(instrument_);
    calls();
    Calls seen;
    QObject::connect(&app_, &AppDelegate::midiInputReceived, [&] { seen.push_back("keys"); });
    QObject::connect(&app_, &AppDelegate::volumeMoved, [&](std::size_t slider, float volume) {
        seen.push_back(fmt::format("volume {} {:.2f}", slider, volume));
    });
    Calls expected;
    std::thread receiver([&] {
        const std::uint8_t bytes[] = {0x90, 60, 127, 0xB0, 11, 127, 0x80, 60, 0};
        const MidiPacket packet = bytes;
        for (int i = 0; i < 100; ++i)
            midiRead({&packet, 1}, app_);
    });
    receiver.join();
    EXPECT_THAT(seen, IsEmpty()) << "not on the receive thread";
    for (int i = 0; i < 100; ++i)
        expected.insert(expected.end(), {"volume 1 1.00", "keys"});
    QCoreApplication::processEvents();
    EXPECT_EQ(seen, expected);
    const Calls sounded = calls();
    ASSERT_EQ(sounded.size(), 300U);
    EXPECT_THAT(std::vector(sounded.begin(), sounded.begin() + 3),
                ElementsAre("play 60 1.00", "volume 1 1.00", "stop 60"));
}
