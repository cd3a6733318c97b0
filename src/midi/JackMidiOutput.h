#pragma once

#include "midi/midiRead.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

class JackClient;

/// A connection to a JACK port of another program or device, to send MIDI messages to. Used on one
/// thread, which a server that hangs does not block.
class JackMidiOutput {
public:
    /// Returns the names of the ports that receive MIDI messages; none without a server.
    static std::vector<std::string> ports();

    /// Connects the port of that name. Throws std::runtime_error if that fails.
    explicit JackMidiOutput(const std::string& port);
    ~JackMidiOutput();
    JackMidiOutput(const JackMidiOutput&) = delete;
    JackMidiOutput& operator=(const JackMidiOutput&) = delete;

    /// True once the server is gone. Destroy the object then, because no client can be opened
    /// before.
    bool isLost() const;

    /// Sends one whole message in one of the next periods. Throws std::runtime_error if
    /// the server is gone, if the message is longer than those that tune, or if too many wait.
    void send(MidiPacket message);

private:
    struct Waiting;

    std::shared_ptr<Waiting> waiting_;
    std::unique_ptr<JackClient> client_;
};

} // namespace velmora
