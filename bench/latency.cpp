// Measures the time from a key to its sound, both on JACK: a client sends 1000 notes at uneven
// moments to `velmora live`, another one records its output. First the General MIDI instrument
// plays, then a sampled one. The server has the dummy driver and periods of 128 frames.

#include "midi/messages.h"
#include "support/JackServer.h"
#include "support/OrganFolder.h"

#include <QCoreApplication>
#include <QProcess>
#include <jack/jack.h>
#include <jack/midiport.h>
#include <spdlog/fmt/fmt.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <random>
#include <span>
#include <stdexcept>
#include <thread>

using namespace velmora;

namespace {

constexpr std::size_t kNotes = 1000;
constexpr std::size_t kRate = 48000;
constexpr double kPeriod = 128.0;
constexpr double kMillisecondsPerFrame = 1000.0 / kRate;

/// A note sounds from the first sample above this part of its peak.
constexpr float kOnset = 0.1F;

using Client = std::unique_ptr<jack_client_t, int (*)(jack_client_t*)>;

Client openClient(const char* name)
{
    Client client(jack_client_open(name, JackNoStartServer, nullptr), jack_client_close);
    if (!client)
        throw std::runtime_error("no JACK server");
    return client;
}

/// A keyboard that plays one key over and over.
class Keyboard {
public:
    Keyboard()
    {
        std::mt19937 random(1);
        std::uniform_int_distribution<std::size_t> gap(kRate / 12, kRate / 7);
        for (std::size_t frame = kRate; starts_.size() < kNotes; frame += gap(random))
            starts_.push_back(frame);
        jack_set_process_callback(client_.get(), process, this);
        jack_activate(client_.get());
    }

    /// The frames at which the notes begin, counted from `begin`.
    const std::vector<std::size_t>& starts() const { return starts_; }

    /// Begins to play the key. Returns the frame time of the server from which frames are counted.
    jack_nframes_t play(std::uint8_t key)
    {
        key_ = key;
        begin_ = jack_last_frame_time(client_.get());
        plays_ = true;
        return begin_;
    }

    bool hasFinished() const { return next_ == 2 * kNotes; }

private:
    /// The frame of the note-on (even) or note-off (odd) with this number.
    std::size_t frameOf(std::size_t message) const
    {
        return starts_[message / 2] + (message % 2 == 0 ? 0 : kRate / 25);
    }

    static int process(jack_nframes_t frames, void* data)
    {
        auto& keyboard = *static_cast<Keyboard*>(data);
        void* buffer = jack_port_get_buffer(keyboard.port_, frames);
        jack_midi_clear_buffer(buffer);
        if (!keyboard.plays_)
            return 0;
        const std::size_t now = jack_last_frame_time(keyboard.client_.get()) - keyboard.begin_;
        std::size_t next = keyboard.next_;
        for (; next < 2 * kNotes && keyboard.frameOf(next) < now + frames; ++next) {
            const std::size_t frame = std::max(keyboard.frameOf(next), now) - now;
            const std::uint8_t status = next % 2 == 0 ? midi::kNoteOn : midi::kNoteOff;
            const std::array<std::uint8_t, 3> message{status, keyboard.key_, 100};
            jack_midi_event_write(buffer, static_cast<jack_nframes_t>(frame), message.data(),
                                  message.size());
        }
        keyboard.next_ = next;
        return 0;
    }

    std::vector<std::size_t> starts_;
    std::atomic<std::uint8_t> key_{0};
    std::atomic<jack_nframes_t> begin_{0};
    std::atomic<std::size_t> next_{0}; ///< The number of the next message.
    std::atomic<bool> plays_{false};
    Client client_ = openClient("keyboard");
    jack_port_t* port_ =
        jack_port_register(client_.get(), "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
};

/// Records the program's left output.
class Listener {
public:
    explicit Listener(std::size_t frames) : sound_(frames)
    {
        jack_set_process_callback(client_.get(), process, this);
        jack_activate(client_.get());
    }

    void listen(jack_nframes_t begin)
    {
        begin_ = begin;
        listens_ = true;
        if (jack_connect(client_.get(), "velmora:left", "listener:in") != 0)
            throw std::runtime_error("velmora is not on JACK");
    }

    std::span<const float> sound() const { return sound_; }

private:
    static int process(jack_nframes_t frames, void* data)
    {
        auto& listener = *static_cast<Listener*>(data);
        if (!listener.listens_)
            return 0;
        const auto* heard = static_cast<const float*>(jack_port_get_buffer(listener.port_, frames));
        const std::size_t now =
            jack_last_frame_time(listener.client_.get()) - listener.begin_.load();
        if (now < listener.sound_.size() - frames)
            std::copy_n(heard, frames, &listener.sound_[now]);
        return 0;
    }

    std::vector<float> sound_;
    std::atomic<jack_nframes_t> begin_{0};
    std::atomic<bool> listens_{false};
    Client client_ = openClient("listener");
    jack_port_t* port_ =
        jack_port_register(client_.get(), "in", JACK_DEFAULT_AUDIO_TYPE, JackPortIsInput, 0);
};

/// Returns how many frames after `start` a note begins to sound that ends before `end`.
double framesUntilOnset(std::span<const float> sound, std::size_t start, std::size_t end)
{
    const auto note = sound.subspan(start, end - start);
    const auto isLouder = [](float a, float b) { return std::fabs(a) < std::fabs(b); };
    const float threshold = kOnset * std::fabs(*std::ranges::max_element(note, isLouder));
    const auto onset =
        std::ranges::find_if(note, [&](float sample) { return std::fabs(sample) > threshold; });
    return static_cast<double>(onset - note.begin());
}

void measure(const char* name, const QStringList& options, std::uint8_t key)
{
    Keyboard keyboard;
    const auto& starts = keyboard.starts();
    Listener listener(starts.back() + 2 * kRate);
    QProcess velmora;
    velmora.start(VELMORA_PROGRAM, QStringList{"live"} + options);
    if (!velmora.waitForReadyRead(20'000))
        throw std::runtime_error("velmora does not start");
    listener.listen(keyboard.play(key));
    while (!keyboard.hasFinished())
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    kill(static_cast<pid_t>(velmora.processId()), SIGINT);
    velmora.waitForFinished(20'000);

    std::vector<double> latencies;
    for (std::size_t i = 0; i < kNotes; ++i) {
        const std::size_t end = i + 1 < kNotes ? starts[i + 1] : starts[i] + kRate / 12;
        latencies.push_back(framesUntilOnset(listener.sound(), starts[i], end));
    }
    std::ranges::sort(latencies);
    const auto at = [&](double part) {
        return latencies[static_cast<std::size_t>(part * (kNotes - 1))] * kMillisecondsPerFrame;
    };
    fmt::print("{}: median {:.2f} ms ({:.2f} periods), p1 {:.2f}, p99 {:.2f}, p99 - p1 {:.2f}, "
               "minimum {:.2f}, maximum {:.2f}\n",
               name, at(0.5), at(0.5) / (kPeriod * kMillisecondsPerFrame), at(0.01), at(0.99),
               at(0.99) - at(0.01), at(0.0), at(1.0));
}

/// Writes an organ with one pipe, whose sound begins with its peak and is short.
std::filesystem::path writeOrgan(const OrganFolder& folder)
{
    Pcm pcm{{}, 1, kRate};
    for (int i = 0; i < 2400; ++i)
        pcm.samples.push_back(static_cast<std::int16_t>(
            12000.0 * std::exp(-i / 300.0) * std::cos(2.0 * std::numbers::pi * i / 48.0)));
    folder.write("pipe.wav", riff::file("WAVE", riff::wave(riff::points(pcm), kRate)));
    return folder.write("test.organ", "[Organ]\nChurchName=Test\n[Manual001]\n"
                                      "FirstAccessibleKeyMIDINoteNumber=60\n"
                                      "[Stop001]\nPipe001=pipe.wav\n");
}

} // namespace

int main(int argc, char** argv)
{
    const JackServer server;
    const QCoreApplication application(argc, argv);
    const OrganFolder folder;
    const auto organ = QString::fromStdString(writeOrgan(folder).string());
    measure("General MIDI", {"--program", "115"}, 76); // a wood block
    measure("samples", {"--instrument", organ}, 60);
}
