#include "support/MidiSource.h"

#include <jack/midiport.h>

#include <stdexcept>
#include <utility>

namespace velmora {

MidiSource::MidiSource(const std::string& client, const std::vector<std::string>& ports)
    : client_(JackClient::open(client)), output_(std::make_shared<Output>())
{
    if (!client_)
        throw std::runtime_error("no JACK server");
    jack_client_t* jack = client_->get();
    for (const std::string& port : ports)
        output_->ports.push_back(
            jack_port_register(jack, port.c_str(), JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0));
    client_->keep(output_);
    jack_set_process_callback(jack, process, output_.get());
    jack_activate(jack);
}

void MidiSource::send(std::size_t port, std::vector<std::uint8_t> message, jack_nframes_t frame)
{
    const std::lock_guard lock(output_->mutex);
    output_->messages.push_back({port, std::move(message), frame});
}

int MidiSource::process(jack_nframes_t frames, void* output)
{
    auto& [mutex, messages, ports] = *static_cast<Output*>(output);
    for (jack_port_t* port : ports)
        jack_midi_clear_buffer(jack_port_get_buffer(port, frames));
    const std::unique_lock lock(mutex, std::try_to_lock);
    if (!lock)
        return 0;
    for (const auto& [port, bytes, frame] : messages)
        jack_midi_event_write(jack_port_get_buffer(ports.at(port), frames), frame, bytes.data(),
                              bytes.size());
    messages.clear();
    return 0;
}

} // namespace velmora
