#include "app/AppDelegate.h"
#include "preferences/Preferences.h"
#include "support/RecordingInstrument.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gmock/gmock.h>

#include <cmath>

namespace velmora {

using testing::Contains;
using testing::Not;

namespace {

class ReceivedTuningsTest : public testing::Test {
protected:
    ReceivedTuningsTest()
    {
        app_.tunings().addBuiltins();
        app_.setInstrument(instrument_, "Recorder");
        app_.midiDevices().arrived({3, "Keys"});
    }

    /// Sends messages and waits until their tuning is played.
    void send(const std::vector<std::vector<std::uint8_t>>& messages)
    {
        for (const auto& message : messages)
            app_.midiDevices().receivedExclusive(3, message);
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 100;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    double centsFromEqual(unsigned long key)
    {
        double cents = 0.0;
        app_.player().with([&](const Instrument&, const Temperament& temperament) {
            cents = 1200.0 * std::log2(temperament.getPitch(key) / equal.getPitch(key));
        });
        return cents;
    }

    Calls calls_;
    RecordingInstrument instrument_{calls_};
    AppDelegate app_;
    KeyPlaces places_ = ReceivedTuning().places;
};

} // namespace

TEST_F(ReceivedTuningsTest, ArePlayedUnderTheirNames)
{
    const Tunings& tunings = app_.tunings();
    places_[64] += 0.07;
    send({writeBulkDump("Bright thirds", places_)});
    EXPECT_EQ(tunings.name(), "Bright thirds");
    EXPECT_NEAR(centsFromEqual(64), 7.0, 0.01);
    EXPECT_NEAR(centsFromEqual(76), 0.0, 0.01) << "only that key";

    places_[64] = 64.5;
    const std::size_t listed = tunings.documents().size();
    send({writeKeyChanges(std::vector<std::uint8_t>{64}, places_)});
    EXPECT_EQ(tunings.documents().size(), listed) << "the tuning itself has changed";
    EXPECT_NEAR(centsFromEqual(64), 50.0, 0.01);

    send({writeBulkDump("Vallotti", places_)});
    EXPECT_EQ(tunings.name(), "Vallotti (Keys)") << "not in the place of a temperament";
    send({writeBulkDump("", places_)});
    EXPECT_EQ(tunings.name(), "Keys");
    app_.midiDevices().arrived({4, "Pads"});
    app_.midiDevices().receivedExclusive(4, writeBulkDump("Keys", places_));
    send({});
    EXPECT_EQ(tunings.name(), "Keys (Pads)") << "another device";
}

TEST_F(ReceivedTuningsTest, TakeThePlaceOfThoseOfAnEarlierSession)
{
    app_.tunings().put(TuningDocument::makeReceived("Keys", {}));
    const std::size_t listed = app_.tunings().documents().size();
    send({writeBulkDump("", places_)});
    EXPECT_EQ(app_.tunings().name(), "Keys");
    EXPECT_EQ(app_.tunings().documents().size(), listed);
}

TEST_F(ReceivedTuningsTest, OfAFloodTheLastIsPlayed)
{
    int changes = 0;
    QObject::connect(&app_.tunings(), &Tunings::changed, [&] { ++changes; });
    std::vector<std::vector<std::uint8_t>> flood;
    for (int i = 0; i < 200; ++i) {
        places_[60] = 60.0 + i / 1000.0;
        flood.push_back(writeKeyChanges(std::vector<std::uint8_t>{60}, places_));
    }
    send(flood);
    EXPECT_NEAR(centsFromEqual(60), 19.9, 0.01);
    EXPECT_LE(changes, 2) << "each change redraws the windows";
    send(std::vector<std::vector<std::uint8_t>>(10000, flood.front()));
    EXPECT_NEAR(centsFromEqual(60), 0.0, 0.01);
}

TEST_F(ReceivedTuningsTest, DamagedOrUnwantedOnesChangeNothing)
{
    auto dump = writeBulkDump("Bad", places_);
    dump[50] ^= 1;
    send({dump, {0xF0, 0x7E, 0x7F, 0xF7}, std::vector<std::uint8_t>(100000, 0xF0)});
    EXPECT_EQ(app_.tunings().name(), "Equal");
    dump[50] ^= 1;
    app_.midiDevices().setSettings("Keys", {.isOn = false});
    send({dump});
    EXPECT_EQ(app_.tunings().name(), "Equal") << "the device is off";
    app_.midiDevices().setSettings("Keys", {});
    resetPref("MidiDevices");
    app_.playing().usePlainReading();
    send({dump});
    EXPECT_THAT(app_.tunings().names(), Not(Contains("Bad"))) << "the plain reading";
}

} // namespace velmora
