// A tuning from end to end: out of the program, through a MIDI port, and into it again.

#include "app/AppDelegate.h"
#include "app/TuningSender.h"
#include "base/Clock.h"
#include "platform/JackClient.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"
#include "support/RecordingInstrument.h"
#include "tuning/KeyTemperament.h"

#include <QCoreApplication>
#include <gmock/gmock.h>
#include <jack/midiport.h>

#include <cmath>
#include <functional>
#include <mutex>
#include <thread>

namespace velmora {

namespace {

/// A synthesizer that is tuned through a JACK port.
class Hardware {
public:
    Hardware()
    {
        jack_client_t* jack = client_->get();
        port_ = jack_port_register(jack, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
        jack_set_process_callback(jack, receive, this);
        jack_activate(jack);
    }

    /// Returns by how many cents a key differs from equal temperament.
    double cents(std::size_t key)
    {
        const std::lock_guard lock(mutex_);
        return 100.0 * (tuning_.places[key] - static_cast<double>(key));
    }

    std::string name()
    {
        const std::lock_guard lock(mutex_);
        return tuning_.name;
    }

private:
    static int receive(jack_nframes_t frames, void* self)
    {
        auto& hardware = *static_cast<Hardware*>(self);
        void* buffer = jack_port_get_buffer(hardware.port_, frames);
        for (std::uint32_t i = 0; i < jack_midi_get_event_count(buffer); ++i) {
            jack_midi_event_t event{};
            jack_midi_event_get(&event, buffer, i);
            const std::lock_guard lock(hardware.mutex_);
            EXPECT_TRUE(readTuningMessage({event.buffer, event.size}, hardware.tuning_));
        }
        return 0;
    }

    std::mutex mutex_;
    ReceivedTuning tuning_;
    jack_port_t* port_ = nullptr;
    std::unique_ptr<JackClient> client_ = JackClient::open("Hardware");
};

/// Runs the event loop until something holds, for ten seconds at most.
bool waitFor(const std::function<bool()>& holds)
{
    for (const double end = getTime() + 10.0; !holds() && getTime() < end;) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return holds();
}

bool isNear(double value, double expected)
{
    return std::abs(value - expected) < 0.02;
}

} // namespace

TEST(TuningPath, HardwareFollowsTheTuningAndCanSetIt)
{
    const JackServer server;
    Hardware hardware;
    MidiSource keyboard("keyboard", {"out"});
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate app;
    app.tunings().addBuiltins();
    app.setInstrument(instrument, "Recorder");
    TuningSender sender(app.player(), app.tunings());
    EXPECT_THAT(MidiOutput::names(), testing::Contains("Hardware:in"));
    EXPECT_THROW(sender.send("Nobody:in"), std::runtime_error);

    app.tunings().select("Quartercomma Meantone");
    sender.send("Hardware:in");
    EXPECT_TRUE(waitFor([&] { return isNear(hardware.cents(64), -13.686); }));
    EXPECT_TRUE(isNear(hardware.cents(100), -13.686)) << "in every octave";

    sender.setKeepsSending(true);
    app.tunings().select("Equal");
    EXPECT_TRUE(waitFor([&] { return isNear(hardware.cents(64), 0.0); })) << "another choice";
    app.tunings().select("Following Meantone");
    app.keyOn(63, 1.0F);
    EXPECT_TRUE(waitFor([&] { return isNear(hardware.cents(63), 10.265); }));
    app.keyOff(63);
    for (const int key : {52, 54, 56, 59, 64, 66, 68, 71})
        app.keyOn(key, 1.0F);
    app.keyOn(63, 1.0F);
    EXPECT_TRUE(waitFor([&] { return isNear(hardware.cents(63), -30.79); })) << "the music itself";

    std::array<double, 128> hertz{};
    for (std::size_t key = 0; key < hertz.size(); ++key)
        hertz[key] = 440.0 * std::exp2((static_cast<double>(key) - 69.0) / 11.0);
    app.tunings().put(
        std::make_unique<TuningDocument>("Wide", "", std::make_unique<KeyTemperament>(hertz)));
    app.tunings().select("Wide");
    EXPECT_TRUE(waitFor([&] { return hardware.name() == "Wide"; }));
    EXPECT_TRUE(isNear(hardware.cents(80), 100.0)) << "11 keys, a semitone more than an octave";

    const MidiInputs inputs(app.midiDevices());
    if (inputs.services() != "JACK")
        return; // this machine has an ALSA sequencer with other devices
    std::this_thread::sleep_for(std::chrono::milliseconds(100)); // connections take effect later
    KeyPlaces places = ReceivedTuning().places;
    places[60] = 60.25;
    keyboard.send(0, writeBulkDump("From afar", places));
    EXPECT_TRUE(waitFor([&] { return app.tunings().name() == "From afar"; }));
    EXPECT_TRUE(waitFor([&] { return isNear(hardware.cents(60), 25.0); })) << "and out again";
}

TEST(TuningPath, EndsWithTheServerAndReachesTheNext)
{
    JackServer server;
    auto hardware = std::make_unique<Hardware>();
    Calls calls;
    RecordingInstrument instrument(calls);
    AppDelegate app;
    app.tunings().addBuiltins();
    app.setInstrument(instrument, "Recorder");
    TuningSender sender(app.player(), app.tunings());
    std::string error;
    QObject::connect(&sender, &TuningSender::failed,
                     [&](const std::string& failure) { error = failure; });
    sender.send("Hardware:in");
    sender.setKeepsSending(true);

    server.crash();
    EXPECT_TRUE(waitFor([&] { return !error.empty(); }));
    EXPECT_EQ(error, "the MIDI output Hardware:in is gone");
    EXPECT_EQ(sender.output(), "");

    hardware.reset();
    server.restart();
    ASSERT_TRUE(waitFor([] { return JackClient::open("probe") != nullptr; }));
    hardware = std::make_unique<Hardware>();
    app.tunings().select("Quartercomma Meantone");
    sender.send("Hardware:in");
    EXPECT_TRUE(waitFor([&] { return isNear(hardware->cents(64), -13.686); }));
}

} // namespace velmora
