#include "midi/JackMidiOutput.h"

#include "base/LockFreeQueue.h"
#include "midi/tuningMessages.h"
#include "platform/JackClient.h"
#include "platform/Uncancelled.h"

#include <jack/midiport.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace velmora {

namespace {

constexpr const char* kClient = "Velmora Tuning";

struct OutgoingMessage {
    std::array<std::uint8_t, kLongestTuningMessage> bytes;
    std::size_t size;
};

} // namespace

/// What the process callback works with.
struct JackMidiOutput::Waiting {
    static int write(jack_nframes_t frames, void* data);

    jack_port_t* port = nullptr;
    LockFreeQueue<OutgoingMessage> messages{64};
};

int JackMidiOutput::Waiting::write(jack_nframes_t frames, void* data)
{
    auto& [port, messages] = *static_cast<Waiting*>(data);
    const Uncancelled uncancelled;
    void* buffer = jack_port_get_buffer(port, frames);
    jack_midi_clear_buffer(buffer);
    if (jack_port_connected(port) == 0)
        return 0; // a connection takes effect a period late
    while (const OutgoingMessage* message = messages.front()) {
        if (jack_midi_event_write(buffer, 0, message->bytes.data(), message->size) != 0)
            break; // it fits into a later period
        messages.pop();
    }
    return 0;
}

std::vector<std::string> JackMidiOutput::ports()
{
    const auto client = JackClient::open(kClient);
    if (!client)
        return {};
    const std::unique_ptr<const char*, void (*)(void*)> names(
        jack_get_ports(client->get(), nullptr, JACK_DEFAULT_MIDI_TYPE, JackPortIsInput), jack_free);
    std::vector<std::string> ports;
    for (const char** name = names.get(); name != nullptr && *name != nullptr; ++name)
        ports.emplace_back(*name);
    return ports;
}

JackMidiOutput::JackMidiOutput(const std::string& port)
    : waiting_(std::make_shared<Waiting>()), client_(JackClient::open(kClient))
{
    if (!client_)
        throw std::runtime_error("JACK accepts no client");
    client_->keep(waiting_);
    const auto isConnected = std::make_shared<bool>(false);
    const bool isAnswered =
        client_->call([waiting = waiting_, isConnected, port](jack_client_t* jack) {
            waiting->port =
                jack_port_register(jack, "Tuning", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
            if (waiting->port == nullptr)
                return;
            jack_set_process_callback(jack, Waiting::write, waiting.get());
            *isConnected = jack_activate(jack) == 0 &&
                           jack_connect(jack, jack_port_name(waiting->port), port.c_str()) == 0;
        });
    if (!isAnswered || !*isConnected)
        throw std::runtime_error("JACK does not connect " + port);
}

JackMidiOutput::~JackMidiOutput() = default;

bool JackMidiOutput::isLost() const
{
    return client_->isLost();
}

void JackMidiOutput::send(MidiPacket message)
{
    OutgoingMessage outgoing{};
    if (!isLost() && message.size() <= outgoing.bytes.size()) {
        std::ranges::copy(message, outgoing.bytes.begin());
        outgoing.size = message.size();
        if (waiting_->messages.push(outgoing))
            return;
    }
    throw std::runtime_error("JACK takes no message");
}

} // namespace velmora
