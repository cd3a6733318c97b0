#pragma once

#include "platform/JackClient.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace velmora {

/// A JACK client on the default server that acts as a MIDI keyboard.
class MidiSource {
public:
    /// Creates the output ports "CLIENT:PORT". Throws std::runtime_error if there is no server.
    MidiSource(const std::string& client, const std::vector<std::string>& ports);

    MidiSource(const MidiSource&) = delete;
    MidiSource& operator=(const MidiSource&) = delete;

    /// Sends a message from the port with the given index in one of the next periods, at the given
    /// frame of the period. Of several messages, later ones must not have earlier frames.
    void send(std::size_t port, std::vector<std::uint8_t> message, jack_nframes_t frame = 0);

private:
    struct Message {
        std::size_t port;
        std::vector<std::uint8_t> bytes;
        jack_nframes_t frame;
    };

    /// What the thread of the client uses.
    struct Output {
        std::mutex mutex;
        std::vector<Message> messages; ///< Waiting to be sent.
        std::vector<jack_port_t*> ports;
    };

    static int process(jack_nframes_t frames, void* output);

    std::unique_ptr<JackClient> client_;
    std::shared_ptr<Output> output_; ///< Kept by the client, whose thread may be slow to end.
};

} // namespace velmora
