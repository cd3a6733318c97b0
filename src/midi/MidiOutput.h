#pragma once

#include "midi/midiRead.h"

#include <memory>
#include <string>
#include <vector>

class RtMidiOut;

namespace velmora {

class JackMidiOutput;

/// A connection to a MIDI port of another program or device, to send to. Used on one thread.
class MidiOutput {
public:
    /// Returns the names of the ports of the ALSA sequencer and of the JACK server that receive,
    /// in alphabetical order, without those of this program.
    static std::vector<std::string> names();

    /// Connects the port of that name. Throws std::runtime_error with a sentence.
    explicit MidiOutput(const std::string& name);
    ~MidiOutput();
    MidiOutput(const MidiOutput&) = delete;
    MidiOutput& operator=(const MidiOutput&) = delete;

    const std::string& name() const { return name_; }

    /// True once the JACK server is gone. Nothing can be sent then, and no other server can be
    /// reached before this object is destroyed.
    bool isLost() const;

    /// Sends one whole message. Throws std::runtime_error with a sentence if that fails; a port
    /// that has vanished may go unnoticed.
    void send(MidiPacket message);

private:
    std::string name_;
    std::unique_ptr<RtMidiOut> alsa_; ///< One of these is null.
    std::unique_ptr<JackMidiOutput> jack_;
};

} // namespace velmora
