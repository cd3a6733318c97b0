#pragma once

#include "midi/MidiReceiver.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

class MidiService;

/// A port that sends MIDI messages.
struct MidiPort {
    MidiService* service;
    std::string name;    ///< The name of its device.
    std::string address; ///< Unique within its service.

    /// Tells a port from an earlier one with the same address.
    unsigned incarnation = 0;

    /// JACK can show the devices of the ALSA sequencer a second time.
    enum class Kind { Other, Original, Mirror } kind = Kind::Other;

    bool operator==(const MidiPort&) const = default;
};

/// The connection to a port, with a client and a port of its own. See docs/decisions.md, 48. Its
/// destructor disconnects; no message is received afterwards.
class MidiConnection {
public:
    virtual ~MidiConnection() = default;

    /// Lets messages through, which are lost before.
    virtual void start() = 0;

    /// True if the port has vanished, even if another one has taken its place.
    virtual bool isBroken() { return false; }
};

/// Thrown if a port cannot be connected.
class MidiConnectionError : public std::runtime_error {
public:
    /// `operation` and `code` say for the log what has failed.
    MidiConnectionError(const char* operation, int code, const std::string& reason)
        : std::runtime_error(reason), operation_(operation), code_(code)
    {
    }

    const char* operation() const { return operation_; }
    int code() const { return code_; }

private:
    const char* operation_;
    int code_;
};

/// A system service that connects programs and MIDI devices. Used by one thread at a time.
class MidiService {
public:
    virtual ~MidiService() = default;

    virtual const char* name() const = 0;

    /// Returns the ports that send messages, after trying to reach the service if it was not
    /// running. Returns nothing if it does not run; then all of its connections have to be
    /// destroyed before the next call.
    virtual std::vector<MidiPort> ports() = 0;

    /// A file descriptor that becomes readable when ports come or go, or -1.
    virtual int descriptor() const = 0;

    /// Connects a port to a receiver, which takes the messages as those of the device with that
    /// number. Throws MidiConnectionError.
    virtual std::unique_ptr<MidiConnection> connect(const MidiPort& port, MidiReceiver& receiver,
                                                    std::size_t device) = 0;
};

} // namespace velmora
