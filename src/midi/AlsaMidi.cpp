#include "midi/AlsaMidi.h"

#include "base/Clock.h"
#include "midi/messages.h"
#include "midi/tuningMessages.h"

#include <RtMidi.h>
#include <alsa/asoundlib.h>
#include <unistd.h>

#include <atomic>
#include <optional>

namespace velmora {

namespace {

/// A connection through RtMidi, which receives on a thread of its own.
class AlsaConnection : public MidiConnection {
public:
    AlsaConnection(const MidiPort& port, MidiReceiver& receiver, std::size_t device)
        : receiver_(receiver), device_(device), midi_(RtMidi::LINUX_ALSA, "MidiClient1")
    {
        midi_.setErrorCallback(keepError, this);
        midi_.setCallback(receive, this);
        midi_.ignoreTypes(false, true, true); // but takes exclusive messages
        midi_.openPort(numberOf(port), "Port1");
        if (!error_)
            return;
        // RtMidi creates and connects the port in one step; only its message says which part
        // failed.
        const bool hasPort = errorText_.find("connection") != std::string::npos ||
                             errorText_.find("subscription") != std::string::npos;
        throw MidiConnectionError(hasPort ? "MIDIPortConnectSource" : "MIDIInputPortCreate",
                                  *error_, errorText_);
    }

    void start() override { isStarted_ = true; }

private:
    /// Returns RtMidi's number for a port. Its names have the form "CLIENT NAME:PORT NAME 20:0".
    unsigned numberOf(const MidiPort& port)
    {
        const unsigned count = midi_.getPortCount();
        for (unsigned number = 0; number < count; ++number)
            if (midi_.getPortName(number).ends_with(" " + port.address))
                return number;
        throw MidiConnectionError("MIDIPortConnectSource", RtMidiError::INVALID_DEVICE,
                                  "it has disappeared");
    }

    static void keepError(RtMidiError::Type type, const std::string& text, void* self)
    {
        static_cast<AlsaConnection*>(self)->error_ = type;
        static_cast<AlsaConnection*>(self)->errorText_ = text;
    }

    static void receive(double /*seconds*/, std::vector<unsigned char>* message, void* self)
    {
        const auto& connection = *static_cast<AlsaConnection*>(self);
        if (!connection.isStarted_)
            return;
        if (message->empty() || message->front() != midi::kSystemExclusive)
            connection.receiver_.received(connection.device_, *message, getTime());
        else if (message->size() <= kLongestTuningMessage)
            connection.receiver_.receivedExclusive(connection.device_, *message);
    }

    MidiReceiver& receiver_;
    std::size_t device_;
    std::atomic<bool> isStarted_{false};
    std::optional<RtMidiError::Type> error_;
    std::string errorText_;
    RtMidiIn midi_; ///< Last, because its thread uses the other members.
};

/// Returns the number of a client's first port that other programs can listen to.
std::optional<int> firstSource(snd_seq_t* sequencer, int client)
{
    // The same ports as those that RtMidi lists.
    constexpr unsigned kSource = SND_SEQ_PORT_CAP_READ | SND_SEQ_PORT_CAP_SUBS_READ;
    constexpr unsigned kMidi =
        SND_SEQ_PORT_TYPE_MIDI_GENERIC | SND_SEQ_PORT_TYPE_SYNTH | SND_SEQ_PORT_TYPE_APPLICATION;
    snd_seq_port_info_t* port = nullptr;
    snd_seq_port_info_alloca(&port);
    snd_seq_port_info_set_client(port, client);
    snd_seq_port_info_set_port(port, -1);
    while (snd_seq_query_next_port(sequencer, port) >= 0)
        if ((snd_seq_port_info_get_capability(port) & kSource) == kSource &&
            (snd_seq_port_info_get_type(port) & kMidi) != 0)
            return snd_seq_port_info_get_port(port);
    return std::nullopt;
}

} // namespace

AlsaMidi::AlsaMidi() : sequencer_(nullptr, snd_seq_close) {}

AlsaMidi::~AlsaMidi() = default;

bool AlsaMidi::open()
{
    snd_seq_t* opened = nullptr;
    if (snd_seq_open(&opened, "default", SND_SEQ_OPEN_INPUT, SND_SEQ_NONBLOCK) < 0)
        return false;
    sequencer_.reset(opened);
    snd_seq_set_client_name(opened, "Velmora");
    const int port = snd_seq_create_simple_port(opened, "Announcements",
                                                SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_NO_EXPORT,
                                                SND_SEQ_PORT_TYPE_APPLICATION);
    if (port >= 0)
        snd_seq_connect_from(opened, port, SND_SEQ_CLIENT_SYSTEM, SND_SEQ_PORT_SYSTEM_ANNOUNCE);
    pollfd events{};
    if (snd_seq_poll_descriptors(opened, &events, 1, POLLIN) == 1)
        descriptor_ = events.fd;
    return true;
}

void AlsaMidi::readAnnouncements()
{
    snd_seq_event_t* event = nullptr;
    while (snd_seq_event_input(sequencer_.get(), &event) >= 0)
        if (event->type == SND_SEQ_EVENT_CLIENT_EXIT || event->type == SND_SEQ_EVENT_PORT_EXIT)
            ++exits_[event->data.addr.client];
}

std::vector<MidiPort> AlsaMidi::ports()
{
    if (!sequencer_ && !open())
        return {};
    readAnnouncements();
    std::vector<MidiPort> ports;
    snd_seq_client_info_t* info = nullptr;
    snd_seq_client_info_alloca(&info);
    snd_seq_client_info_set_client(info, -1);
    while (snd_seq_query_next_client(sequencer_.get(), info) >= 0) {
        const int client = snd_seq_client_info_get_client(info);
        if (client == SND_SEQ_CLIENT_SYSTEM || snd_seq_client_info_get_pid(info) == getpid())
            continue;
        if (const auto port = firstSource(sequencer_.get(), client))
            ports.push_back({.service = this,
                             .name = snd_seq_client_info_get_name(info),
                             .address = std::to_string(client) + ":" + std::to_string(*port),
                             .incarnation = exits_[static_cast<std::uint8_t>(client)],
                             .kind = MidiPort::Kind::Original});
    }
    return ports;
}

std::unique_ptr<MidiConnection> AlsaMidi::connect(const MidiPort& port, MidiReceiver& receiver,
                                                  std::size_t device)
{
    try {
        return std::make_unique<AlsaConnection>(port, receiver, device);
    } catch (const RtMidiError& error) {
        throw MidiConnectionError("MIDIClientCreate", error.getType(), error.getMessage());
    }
}

} // namespace velmora
