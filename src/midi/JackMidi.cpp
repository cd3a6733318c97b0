#include "midi/JackMidi.h"

#include "midi/ExclusiveBuffer.h"
#include "midi/messages.h"
#include "platform/JackClient.h"
#include "platform/Uncancelled.h"
#include "platform/jackTime.h"

#include <jack/midiport.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace velmora {

namespace {

/// The clients that show the devices of the ALSA sequencer on JACK.
constexpr std::array<std::string_view, 2> kBridges{"a2j:", "Midi-Bridge:"};

/// What the process callback of a connection works with.
struct JackInput {
    void read(jack_nframes_t frames);
    void readEvent(MidiPacket message, double time);

    MidiReceiver* receiver;
    std::size_t device;
    jack_client_t* client;
    jack_port_t* port = nullptr;
    ExclusiveBuffer exclusive; ///< A message may go on in the next event.
    std::atomic<bool> isStarted{false}, isReading{false};
};

void JackInput::readEvent(MidiPacket message, double time)
{
    if (message.empty())
        return;
    if (exclusive.isPart(message)) {
        if (const MidiPacket whole = exclusive.add(message); !whole.empty())
            receiver->receivedExclusive(device, whole);
    } else if (message.front() != midi::kTimeCode && message.front() != midi::kTimingClock &&
               message.front() != midi::kActiveSensing) {
        receiver->received(device, message, time);
    }
}

void JackInput::read(jack_nframes_t frames)
{
    void* buffer = jack_port_get_buffer(port, frames);
    const std::uint32_t count = jack_midi_get_event_count(buffer);
    if (count == 0)
        return;
    // See docs/decisions.md, 137.
    const double end = jackPeriod(client).end;
    const double rate = jack_get_sample_rate(client);
    for (std::uint32_t i = 0; i < count; ++i) {
        jack_midi_event_t event{};
        if (jack_midi_event_get(&event, buffer, i) != 0)
            continue;
        readEvent({event.buffer, event.size}, end - (frames - event.time) / rate);
    }
}

int readInput(jack_nframes_t frames, void* data)
{
    auto& input = *static_cast<JackInput*>(data);
    const Uncancelled uncancelled;
    input.isReading = true;
    if (input.isStarted)
        input.read(frames);
    input.isReading = false;
    return 0;
}

class JackConnection : public MidiConnection {
public:
    JackConnection(const MidiPort& source, MidiReceiver& receiver, std::size_t device,
                   const JackMidi::Changes& changes)
        : changes_(changes), exits_(changes.exits), client_(JackClient::open("MidiClient1"))
    {
        if (!client_)
            throw MidiConnectionError("MIDIClientCreate", JackFailure, "JACK accepts no client");
        input_->receiver = &receiver;
        input_->device = device;
        input_->client = client_->get();
        client_->keep(input_);
        const auto error = std::make_shared<int>(0);
        const bool isAnswered =
            client_->call([input = input_, error, address = source.address](jack_client_t* jack) {
                input->port =
                    jack_port_register(jack, "Port1", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
                if (input->port == nullptr)
                    return;
                jack_set_process_callback(jack, readInput, input.get());
                *error = jack_activate(jack);
                if (*error == 0)
                    *error = jack_connect(jack, address.c_str(), jack_port_name(input->port));
            });
        if (!isAnswered)
            throw MidiConnectionError("MIDIPortConnectSource", JackFailure, "JACK does not answer");
        if (input_->port == nullptr)
            throw MidiConnectionError("MIDIInputPortCreate", JackFailure, "JACK accepts no port");
        if (*error != 0)
            throw MidiConnectionError("MIDIPortConnectSource", *error, "JACK does not connect it");
    }

    ~JackConnection() override
    {
        // Closing a client may fail; the callback must end even then.
        input_->isStarted = false;
        while (input_->isReading)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    void start() override { input_->isStarted = true; }

    bool isBroken() override
    {
        // The user may have disconnected a port that is still there. That is left as it is.
        const unsigned exits = changes_.exits;
        return exits_ != std::exchange(exits_, exits) && jack_port_connected(input_->port) == 0;
    }

private:
    const JackMidi::Changes& changes_;
    unsigned exits_; ///< The number of vanished ports when the connection was last checked.
    std::shared_ptr<JackInput> input_ = std::make_shared<JackInput>();
    std::unique_ptr<JackClient> client_;
};

void notePort(jack_port_id_t /*port*/, int isRegistered, void* data)
{
    auto& changes = *static_cast<JackMidi::Changes*>(data);
    if (isRegistered == 0)
        ++changes.exits;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(changes.descriptor, &one, sizeof one);
}

MidiPort::Kind kindOf(std::string_view name, int flags)
{
    const bool isMirror =
        (flags & JackPortIsPhysical) != 0 ||
        std::ranges::any_of(kBridges, [&](auto bridge) { return name.starts_with(bridge); });
    return isMirror ? MidiPort::Kind::Mirror : MidiPort::Kind::Other;
}

} // namespace

JackMidi::Changes::Changes() : descriptor(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    if (descriptor < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");
}

JackMidi::Changes::~Changes()
{
    close(descriptor);
}

JackMidi::JackMidi() : changes_(std::make_shared<Changes>()) {}

JackMidi::~JackMidi() = default;

bool JackMidi::open()
{
    watcher_ = JackClient::open("Velmora");
    if (!watcher_)
        return false;
    watcher_->keep(changes_);
    jack_set_port_registration_callback(watcher_->get(), notePort, changes_.get());
    const auto error = std::make_shared<int>(0);
    const bool isAnswered =
        watcher_->call([error](jack_client_t* jack) { *error = jack_activate(jack); });
    if (!isAnswered || *error != 0)
        watcher_.reset();
    return watcher_ != nullptr;
}

std::vector<MidiPort> JackMidi::ports()
{
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t length = read(changes_->descriptor, &count, sizeof count);
    if (watcher_ && watcher_->isLost()) {
        watcher_.reset();
        return {}; // before another server is looked for, every client has to be closed
    }
    if (!watcher_ && !open())
        return {};
    jack_client_t* client = watcher_->get();
    const std::unique_ptr<const char*, void (*)(void*)> names(
        jack_get_ports(client, nullptr, JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput), jack_free);
    std::vector<MidiPort> ports;
    for (const char** name = names.get(); name != nullptr && *name != nullptr; ++name) {
        const jack_port_t* port = jack_port_by_name(client, *name);
        if (port != nullptr)
            ports.push_back({.service = this,
                             .name = *name,
                             .address = *name,
                             .kind = kindOf(*name, jack_port_flags(port))});
    }
    return ports;
}

std::unique_ptr<MidiConnection> JackMidi::connect(const MidiPort& port, MidiReceiver& receiver,
                                                  std::size_t device)
{
    return std::make_unique<JackConnection>(port, receiver, device, *changes_);
}

} // namespace velmora
