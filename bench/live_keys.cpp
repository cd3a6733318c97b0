// Measures the time from receiving a key to playing it while the keyboard repaints. The MIDI
// messages come through a JACK server with the dummy driver. Needs a display.

#include "app/generalMidiBanks.h"
#include "audio/Synthesizer.h"
#include "desktop/keyboard/KeyboardView.h"
#include "desktop/shell/Desktop.h"
#include "desktop/widgets/graphics.h"
#include "midi/messages.h"
#include "support/JackServer.h"
#include "support/MidiSource.h"

#include <QApplication>
#include <QTimer>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <chrono>

using namespace velmora;

namespace {

constexpr std::size_t kMessages = 4000;
constexpr int kMillisecondsBetweenMessages = 5;
constexpr int kMillisecondsBetweenFrames = 16;
constexpr double kMicroseconds = 1e6;

double now()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(time).count();
}

/// Measures how long a receiver takes for each message.
class Stopwatch : public MidiReceiver {
public:
    Stopwatch(MidiReceiver& receiver, std::vector<double>& times)
        : receiver_(receiver), times_(times)
    {
    }

    void arrived(const MidiDevice& device) override { receiver_.arrived(device); }
    void departed(const MidiDevice& device) override { receiver_.departed(device); }

    void received(std::size_t device, MidiPacket message, double time) override
    {
        const double begun = now();
        receiver_.received(device, message, time);
        times_.push_back((now() - begun) * kMicroseconds);
    }

private:
    MidiReceiver& receiver_;
    std::vector<double>& times_;
};

} // namespace

int main(int argc, char** argv)
{
    const JackServer server;
    MidiSource piano("piano", {"keys"});
    requestOpenGL();
    const QApplication application(argc, argv);
    Desktop desktop;
    AppDelegate& live = desktop.application();
    live.tunings().addBuiltins();
    auto output = AudioOutput::open({});
    auto synthesizer = std::make_unique<Synthesizer>(output->rate(), generalMidiBanks());
    live.makeMIDIPlayer(std::move(synthesizer));
    live.engine().setRate(output->rate());
    output->start(live.engine());
    live.tunings().select("Dynamic");

    std::vector<double> times;
    times.reserve(kMessages);
    Stopwatch stopwatch(live.midiDevices(), times);
    const MidiInputs inputs(stopwatch);

    std::size_t frames = 0;
    QTimer repainting, sending;
    repainting.setTimerType(Qt::PreciseTimer);
    KeyboardView& keyboard = desktop.workspace().keyboard();
    QObject::connect(&keyboard, &QOpenGLWidget::frameSwapped, [&] { ++frames; });
    QObject::connect(&repainting, &QTimer::timeout, &keyboard, qOverload<>(&QWidget::update));
    std::size_t sent = 0;
    QObject::connect(&sending, &QTimer::timeout, [&] {
        const auto key = static_cast<std::uint8_t>(36 + sent / 2 % 48);
        piano.send(0, {sent % 2 == 0 ? midi::kNoteOn : midi::kNoteOff, key, 100});
        if (++sent == kMessages)
            QApplication::exit();
    });
    repainting.start(kMillisecondsBetweenFrames);
    sending.start(kMillisecondsBetweenMessages);
    const double started = now();
    QApplication::exec();

    std::sort(times.begin(), times.end());
    const auto at = [&](double part) {
        return times[static_cast<std::size_t>(part * static_cast<double>(times.size() - 1))];
    };
    fmt::print("{} messages, {:.1f} frames per second\n", times.size(),
               static_cast<double>(frames) / (now() - started));
    fmt::print("microseconds from receiving to playing: median {:.1f}, p99 {:.1f}, max {:.1f}\n",
               at(0.5), at(0.99), at(1.0));
    output.reset();
}
