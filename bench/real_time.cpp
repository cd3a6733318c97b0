// Plays `velmora live` for 30 seconds and lets realTimeCounters.cpp count what its JACK callbacks
// do, with the General MIDI instrument and with a sampled one. There should be no allocation and no
// held lock.

#include "midi/messages.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"
#include "support/OrganFolder.h"

#include <QCoreApplication>
#include <QProcess>
#include <spdlog/fmt/fmt.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <set>
#include <stdexcept>
#include <thread>

using namespace velmora;

namespace {

constexpr int kSeconds = 30;
constexpr int kMessagesPerSecond = 500;
constexpr std::size_t kMostKeys = 10;
constexpr std::uint8_t kSustain = 64, kSoft = 67;

/// A player who uses everything at random.
class Hands {
public:
    explicit Hands(MidiSource& keyboard) : keyboard_(keyboard) {}

    void move()
    {
        const auto value = static_cast<std::uint8_t>(random_() % 128);
        switch (random_() % 16) {
        case 0:
            return keyboard_.send(0, {midi::kControlChange, kSustain, value});
        case 1:
            return keyboard_.send(0, {midi::kControlChange, kSoft, value});
        case 2:
            return keyboard_.send(0, {midi::kControlChange, midi::kChannelVolume, value});
        case 3:
            return keyboard_.send(0, {midi::kPitchBend, 0, value});
        default:
            return playKey(static_cast<std::uint8_t>(36 + random_() % 60));
        }
    }

private:
    void playKey(std::uint8_t key)
    {
        if (held_.size() < kMostKeys && held_.insert(key).second)
            return keyboard_.send(0, {midi::kNoteOn, key, 100});
        key = *held_.begin();
        held_.erase(key);
        keyboard_.send(0, {midi::kNoteOff, key, 0});
    }

    MidiSource& keyboard_;
    std::mt19937 random_{1};
    std::set<std::uint8_t> held_;
};

void play(const char* name, const QStringList& options)
{
    fmt::print("{}\n", name);
    std::fflush(stdout);
    MidiSource keyboard("keyboard", {"out"});
    QProcess velmora;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", VELMORA_COUNTERS);
    velmora.setProcessEnvironment(environment);
    velmora.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    velmora.start(VELMORA_PROGRAM, QStringList{"live", "--tuning", "Dynamic"} + options);
    if (!velmora.waitForReadyRead(60'000))
        throw std::runtime_error("velmora does not start");
    Hands hands(keyboard);
    auto next = std::chrono::steady_clock::now();
    for (int i = 0; i < kSeconds * kMessagesPerSecond; ++i) {
        hands.move();
        next += std::chrono::microseconds(1'000'000 / kMessagesPerSecond);
        std::this_thread::sleep_until(next);
    }
    kill(static_cast<pid_t>(velmora.processId()), SIGINT);
    velmora.waitForFinished(20'000);
}

/// Writes an organ of twelve stops.
QString writeOrgan(const OrganFolder& folder)
{
    std::string organ =
        "[Organ]\nChurchName=Test\n[Manual001]\nFirstAccessibleKeyMIDINoteNumber=36\n";
    for (int stop = 1; stop <= 12; ++stop) {
        organ += fmt::format("[Stop{:03}]\n", stop);
        for (int pipe = 1; pipe <= 60; ++pipe)
            organ += fmt::format("Pipe{:03}={}.wav\n", pipe, (pipe - 1) / 12);
    }
    for (int octave = 0; octave < 5; ++octave)
        folder.writeSine(fmt::format("{}.wav", octave), 65.4 * std::exp2(octave));
    return QString::fromStdString(folder.write("test.organ", organ).string());
}

} // namespace

int main(int argc, char** argv)
{
    const JackServer server;
    const QCoreApplication application(argc, argv);
    const OrganFolder folder;
    play("General MIDI", {"--program", "19"});
    play("samples", {"--instrument", writeOrgan(folder)});
}
