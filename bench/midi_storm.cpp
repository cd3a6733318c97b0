// Two MIDI devices send 50,000 messages a second each for ten seconds, through a JACK server with
// the dummy driver, while the General MIDI player plays them.

#include "app/AppDelegate.h"
#include "midi/messages.h"
#include "platform/JackClient.h"
#include "support/JackServer.h"

#include <QCoreApplication>
#include <QTimer>
#include <jack/midiport.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <thread>

using namespace velmora;

namespace {

constexpr double kSeconds = 10.0;
constexpr double kMessagesPerSecond = 50'000.0;
constexpr int kMillisecondsBetweenLooks = 100;
constexpr std::uint8_t kLowest = 36;
constexpr unsigned kKeyCount = 48;

/// A device that presses and releases one key after another, evenly over each period.
class Device {
public:
    explicit Device(const char* name) : client_(JackClient::open(name))
    {
        jack_client_t* client = client_->get();
        port_ = jack_port_register(client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
        rate_ = jack_get_sample_rate(client);
        jack_set_process_callback(client, process, this);
        jack_activate(client);
    }

    std::atomic<bool> isPlaying{false};
    std::atomic<std::uint64_t> sent{0};

private:
    static int process(jack_nframes_t frames, void* self)
    {
        static_cast<Device*>(self)->write(frames);
        return 0;
    }

    void write(jack_nframes_t frames)
    {
        void* buffer = jack_port_get_buffer(port_, frames);
        jack_midi_clear_buffer(buffer);
        const bool plays = isPlaying;
        if (plays)
            due_ += kMessagesPerSecond * frames / rate_;
        // A key that is down is released even at the end.
        auto count = static_cast<unsigned>(due_);
        if (!plays)
            count = isDown_ ? 1 : 0;
        for (unsigned i = 0; i < count; ++i) {
            const std::array<std::uint8_t, 3> message{
                isDown_ ? midi::kNoteOff : midi::kNoteOn,
                static_cast<std::uint8_t>(kLowest + strokes_ % kKeyCount), 100};
            if (jack_midi_event_write(buffer, i * frames / count, message.data(), 3) != 0)
                break;
            strokes_ += isDown_ ? 1 : 0;
            isDown_ = !isDown_;
            ++sent;
        }
        due_ -= std::min<double>(due_, count);
    }

    jack_port_t* port_ = nullptr;
    double rate_ = 0.0, due_ = 0.0;
    bool isDown_ = false;
    unsigned strokes_ = 0;
    std::unique_ptr<JackClient> client_;
};

} // namespace

int main(int argc, char** argv)
{
    const JackServer server(JackServer::Mode::Asynchronous);
    std::array<Device, 2> devices{Device("first"), Device("second")};
    QCoreApplication application(argc, argv);
    AppDelegate live;
    live.start({"jack", {}, 0.0, 0});
    live.output()->waitForOutput();
    live.waitForBank();

    std::size_t silentLooks = 0;
    double worstLoad = 0.0;
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, [&] {
        const auto peaks = live.engine().takePeaks();
        silentLooks += std::max(peaks[0], peaks[1]) == 0.0F ? 1 : 0;
        worstLoad = std::max(worstLoad, live.engine().takeLoad().worst);
    });
    const auto lostBefore = live.output()->status().lostPeriods;
    for (Device& device : devices)
        device.isPlaying = true;
    looking.start(kMillisecondsBetweenLooks);
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(
                           std::chrono::duration<double>(kSeconds)),
                       &application, &QCoreApplication::quit);
    QCoreApplication::exec();
    looking.stop();
    const auto lost = live.output()->status().lostPeriods - lostBefore;
    for (Device& device : devices)
        device.isPlaying = false;
    std::this_thread::sleep_for(std::chrono::milliseconds(kMillisecondsBetweenLooks));

    std::uint64_t received = 0;
    for (const KnownDevice& device : live.midiDevices().devices())
        received += device.messages;
    int stuck = 0;
    for (std::size_t key = 0; key < kKeys; ++key)
        stuck += live.player().liveKeys().state(key) != 0 ? 1 : 0;
    fmt::print("{} messages sent, {} received, {:.0f} a second\n",
               devices[0].sent + devices[1].sent, received,
               static_cast<double>(received) / kSeconds);
    fmt::print("{} stuck keys, {} silent looks, {} lost periods, worst load {:.0f} %\n", stuck,
               silentLooks, lost, 100.0 * worstLoad);
}
