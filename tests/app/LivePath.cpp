// Live playing from end to end: from a MIDI port to JACK.

#include "app/AppDelegate.h"
#include "app/generalMidiBanks.h"
#include "audio/Synthesizer.h"
#include "midi/messages.h"
#include "support/Bank.h"
#include "support/JackListener.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <QProcess>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <thread>

namespace velmora {

namespace {

constexpr std::size_t kRate = 48000;

/// Counts the periods from the arrival of a message to the first audible frame.
class LatencyProbe : public AudioSource {
public:
    explicit LatencyProbe(AudioSource& source) : source_(source) {}

    void render(float* left, float* right, std::size_t frames, double start) override
    {
        const bool counts = arrived && !sounds;
        periods += counts ? 1 : 0;
        source_.render(left, right, frames, start);
        sounds = sounds || (counts && peak({left, frames}) != 0.0F);
    }

    std::atomic<bool> arrived{false}, sounds{false};
    std::atomic<int> periods{0};

private:
    AudioSource& source_;
};

} // namespace

// Sound is rendered one period late, and the synthesizer and the limiter take parts of others.
TEST(LivePath, SoundsWithinThreePeriodsOfAMessage)
{
    const JackServer server;
    MidiSource source("keyboard", {"out"});
    AppDelegate app;
    app.tunings().addBuiltins();
    auto synthesizer = std::make_unique<Synthesizer>(kRate, generalMidiBanks());
    LatencyProbe probe(app.engine());
    app.makeMIDIPlayer(std::move(synthesizer));
    struct Marker : MidiReceiver {
        Marker(MidiReceiver& player, LatencyProbe& reached) : devices(player), probe(reached) {}
        void arrived(const MidiDevice& device) override { devices.arrived(device); }
        void departed(const MidiDevice& device) override { devices.departed(device); }
        void received(std::size_t device, MidiPacket message, double time) override
        {
            probe.arrived = true;
            devices.received(device, message, time);
        }
        MidiReceiver& devices;
        LatencyProbe& probe;
    } marker(app.midiDevices(), probe);
    const MidiInputs inputs(marker);
    if (inputs.services() != "JACK")
        GTEST_SKIP() << "this machine has an ALSA sequencer with other devices";

    for (std::uint8_t i = 0; i < 50; ++i) {
        // Renders without the output, so that the last note dies away faster than in real time.
        const Stereo silence = rendered(app.engine(), 4 * kRate + std::size_t{17} * i);
        ASSERT_EQ(silence.left.back(), 0.0F);
        probe.arrived = probe.sounds = false;
        probe.periods = 0;
        auto output = AudioOutput::open({"jack", {}, 0.0, 0});
        ASSERT_NE(output, nullptr);
        output->start(probe);
        std::this_thread::sleep_for(std::chrono::microseconds(10'000 + 137 * i));
        const auto key = static_cast<std::uint8_t>(48 + i % 36);
        source.send(0, {midi::kNoteOn, key, 100});
        ASSERT_TRUE(waitUntil([&] { return probe.sounds.load(); }));
        output.reset();
        app.player().releaseAll(deviceSource(0, 0));
        EXPECT_LE(probe.periods, 3);
    }
}

TEST(LivePath, TheProgramPlaysInTuneUntilItIsInterrupted)
{
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "ThreadSanitizer does not support a fork while JACK's threads run";
#endif
    const JackServer server;
    MidiSource source("keyboard", {"out"});
    QProcess velmora;
    velmora.start(VELMORA_PROGRAM, {"live", "--tuning", "Quartercomma Meantone", "--program",
                                    QString::number(kSteadyProgram)});
    ASSERT_TRUE(velmora.waitForReadyRead(20'000));
    const std::string line = velmora.readAllStandardOutput().toStdString();
    if (line.find("keyboard:out on jack") == std::string::npos)
        GTEST_SKIP() << "this machine has other devices: " << line;
    JackListener listener;
    source.send(0, {midi::kNoteOn, 64, 100});
    listener.listen(kRate);                                        // the attack
    const double hertz = 329.6276 * std::exp2(-13.68629 / 1200.0); // the pure third of C
    EXPECT_NEAR(cents(measuredHertz(listener.listen(kRate), kRate, hertz), hertz), 0.0, 3.0);
    source.send(0, {midi::kNoteOff, 64, 0});
    const auto isSilent = [&] { return peak(listener.listen(4800)) < 1e-6F; };
    EXPECT_TRUE(waitUntil(isSilent)) << "dies away";

    const auto process = static_cast<pid_t>(velmora.processId());
    const std::pair<const char*, std::function<void()>> panics[] = {
        {"a letter",
         [&] {
             velmora.write("o\np\n");
             EXPECT_TRUE(velmora.waitForBytesWritten());
             velmora.closeWriteChannel();
         }},
        {"a signal after the end of the input", [&] { kill(process, SIGUSR1); }}};
    for (const auto& [name, panic] : panics) {
        source.send(0, {midi::kNoteOn, 64, 100});
        EXPECT_TRUE(waitUntil([&] { return !isSilent(); })) << name;
        panic();
        EXPECT_TRUE(waitUntil(isSilent)) << name;
        source.send(0, {midi::kNoteOff, 64, 0});
    }
    kill(process, SIGINT);
    EXPECT_TRUE(velmora.waitForFinished(20'000));
    EXPECT_EQ(velmora.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(velmora.exitCode(), 0);
    EXPECT_EQ(velmora.readAllStandardError().toStdString(), "");
}

} // namespace velmora
