// Live playing as a musician has it: a MIDI port in, JACK out.

#include "app/AppDelegate.h"
#include "platform/Synthesizer.h"
#include "support/Bank.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"
#include "support/Pitch.h"
#include "support/Stereo.h"

#include <QProcess>
#include <gtest/gtest.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kRate = 48000;
constexpr float kSilence = 1e-6F; // −120 dBFS

/// E and what quarter-comma meantone takes it away from equal temperament, in cents.
constexpr std::uint8_t kKey = 64;
constexpr double kHertz = 329.6276;
constexpr double kMeantone = -13.68629;

bool waitUntil(const std::function<bool()>& condition, std::chrono::seconds time = 20s)
{
    for (const auto end = Clock::now() + time; !condition();) {
        if (Clock::now() > end)
            return false;
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

/// A JACK client that listens to what the program sounds on the left.
class Listener {
public:
    Listener()
        : client_(jack_client_open("listener", JackNoStartServer, nullptr), jack_client_close)
    {
        port_ =
            jack_port_register(client_.get(), "in", JACK_DEFAULT_AUDIO_TYPE, JackPortIsInput, 0);
        jack_set_process_callback(client_.get(), process, this);
        jack_activate(client_.get());
    }

    /// Waits until the program is there.
    bool connect()
    {
        return waitUntil(
            [this] { return jack_connect(client_.get(), "velmora:left", "listener:in") == 0; });
    }

    /// What sounds from now on.
    std::vector<float> listen(std::size_t frames)
    {
        sound_.assign(frames, 0.0F);
        heard_ = 0;
        listening_ = true;
        EXPECT_TRUE(waitUntil([this] { return !listening_; }));
        return sound_;
    }

private:
    static int process(jack_nframes_t frames, void* self)
    {
        static_cast<Listener*>(self)->copyFromJack(frames);
        return 0;
    }

    void copyFromJack(std::size_t frames)
    {
        if (!listening_)
            return;
        const auto* in = static_cast<const float*>(
            jack_port_get_buffer(port_, static_cast<jack_nframes_t>(frames)));
        const std::size_t left = sound_.size() - heard_;
        const std::size_t count = std::min(frames, left);
        std::copy_n(in, count, sound_.data() + heard_);
        heard_ += count;
        listening_ = count < left;
    }

    std::vector<float> sound_;
    std::size_t heard_ = 0;
    std::atomic<bool> listening_{false}; ///< The two above are the callback's while it is set.
    jack_port_t* port_ = nullptr;
    std::unique_ptr<jack_client_t, int (*)(jack_client_t*)> client_;
};

/// Counts the periods from the arrival of bytes to the first frame that sounds.
class LatencyProbe : public AudioSource {
public:
    explicit LatencyProbe(AudioSource& source) : source_(source) {}

    void reset()
    {
        periods_ = 0;
        arrived_ = false;
        waiting_ = true;
    }

    void arrived()
    {
        moment_ = Clock::now();
        arrived_ = true;
    }

    void render(float* left, float* right, std::size_t frames) override
    {
        if (arrived_ && waiting_)
            ++periods_;
        source_.render(left, right, frames);
        const bool sounds = peak({left, frames}) != 0.0F || peak({right, frames}) != 0.0F;
        if (sounds && arrived_ && waiting_) {
            elapsed_ = Clock::now() - moment_;
            waiting_ = false;
        }
    }

    bool waiting() const { return waiting_; }
    int periods() const { return periods_; }
    double microseconds() const
    {
        return std::chrono::duration<double, std::micro>(elapsed_).count();
    }

private:
    AudioSource& source_;
    std::atomic<bool> arrived_{false}, waiting_{true};
    std::atomic<int> periods_{0};
    Clock::time_point moment_; // Until the bytes arrive theirs, then the renderer's.
    Clock::duration elapsed_{};
};

double tuneOf(Listener& listener)
{
    listener.listen(kRate); // the attack
    const std::vector<float> sound = listener.listen(kRate);
    EXPECT_GT(peak(sound), 0.01F);
    return measuredHertz(sound, kRate, kHertz);
}

} // namespace

TEST(LivePath, AKeyOfAMidiPortSoundsInTuneOnJack)
{
    setenv("ALSOFT_DRIVERS", "null", 1); // sampled instruments are not played here
    const JackServer server;
    MidiSource source("keyboard", {"out"});
    AppDelegate app;
    app.applicationDidFinishLaunching();
    if (app.midiInputs()->api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer, which goes before JACK";
    ASSERT_NE(app.audioOutput(), nullptr);
    EXPECT_EQ(app.audioOutput()->driver(), "jack");
    EXPECT_EQ(app.audioOutput()->rate(), kRate);
    EXPECT_TRUE(waitUntil([&] { return app.audioOutput()->period() == 128; }));
    app.getInstrument()->setInstrument(kSteadyProgram);
    Listener listener;
    ASSERT_TRUE(listener.connect());

    source.send(0, {0x90, kKey, 100});
    const double equalHertz = tuneOf(listener);
    EXPECT_NEAR(cents(equalHertz, kHertz), 0.0, 3.0) << "as the bank has it";
    ASSERT_TRUE(app.selectTuning("Quartercomma Meantone"));
    EXPECT_NEAR(cents(tuneOf(listener), equalHertz), kMeantone, 0.05);
    source.send(0, {0x80, kKey, 0});
    EXPECT_TRUE(waitUntil([&] { return peak(listener.listen(4800)) < kSilence; }));
}

TEST(LivePath, SoundsWithinTwoPeriodsOfTheArrivalOfTheBytes)
{
    constexpr int kRepetitions = 50;
    const JackServer server;
    MidiSource source("keyboard", {"out"});
    const auto output = AudioOutput::open();
    ASSERT_NE(output, nullptr);
    AppDelegate app;
    app.makeBuiltinTunings();
    auto synthesizer = std::make_unique<Synthesizer>(output->rate(), generalMidiBanks());
    Synthesizer& sounding = *synthesizer;
    LatencyProbe probe(sounding);
    app.makeMIDIPlayer(std::move(synthesizer));
    const MidiInputs inputs([&](MidiPacket packet) {
        if (packet[0] == 0x90)
            probe.arrived();
        midiRead({&packet, 1}, app);
    });
    if (inputs.api() == "ALSA")
        GTEST_SKIP() << "this machine has an ALSA sequencer, which goes before JACK";

    std::vector<double> microseconds;
    std::array<int, 4> periods{};
    for (std::uint8_t i = 0; i < kRepetitions; ++i) {
        // Without the output the last note dies away at once.
        const Stereo silence = rendered(sounding, 4 * kRate + std::size_t{17} * i);
        ASSERT_EQ(silence.left.back(), 0.0F);
        probe.reset();
        output->play(&probe);
        std::this_thread::sleep_for(std::chrono::microseconds(10'000 + 137 * i));
        const auto key = static_cast<std::uint8_t>(48 + i % 36);
        source.send(0, {0x90, key, 100});
        ASSERT_TRUE(waitUntil([&] { return !probe.waiting(); }));
        output->play(nullptr);
        app.keyOff(key);
        EXPECT_LE(probe.periods(), 2);
        ++periods.at(std::min<std::size_t>(3, static_cast<std::size_t>(probe.periods())));
        microseconds.push_back(probe.microseconds());
    }
    std::ranges::sort(microseconds);
    fmt::print("Periods: {} × 0, {} × 1, {} × 2, {} × more; median {:.0f} µs, longest {:.0f} µs\n",
               periods[0], periods[1], periods[2], periods[3], microseconds[kRepetitions / 2],
               microseconds.back());
    RecordProperty("MedianMicroseconds", std::to_string(microseconds[kRepetitions / 2]));
}

TEST(LivePath, TheProgramPlaysUntilItIsInterrupted)
{
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "ThreadSanitizer slows its end and dislikes a fork beside JACK's threads";
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
    Listener listener;
    ASSERT_TRUE(listener.connect());
    source.send(0, {0x90, kKey, 100});
    EXPECT_NEAR(cents(tuneOf(listener), kHertz), kMeantone, 3.0);

    kill(static_cast<pid_t>(velmora.processId()), SIGINT);
    const auto before = Clock::now();
    EXPECT_TRUE(velmora.waitForFinished(10'000));
    EXPECT_LT(Clock::now() - before, 1s);
    EXPECT_EQ(velmora.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(velmora.exitCode(), 0);
    EXPECT_EQ(velmora.readAllStandardError().toStdString(), "");
}
