#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// Takes one whole MIDI message, running status expanded, on a receive thread: over JACK that is
/// the server's real-time thread. The bytes last until it returns. Must not throw. Each device has
/// a thread of its own, so that it may be called from several at once.
using MidiReceiver = std::function<void(std::span<const std::uint8_t> message)>;

/// The MIDI devices that are present when it is made, each connected by its first source for as
/// long as this lives. Of two devices of one name the last one is connected. Devices that come
/// later are not looked for. System exclusive, timing and active sensing messages are left out.
class MidiInputs {
public:
    /// Connects the devices of the ALSA sequencer or, where it has none, of a running JACK server.
    /// The kernel's "Midi Through" counts only where neither has another: programs may send there.
    /// Failures are logged: a device that cannot be connected gives no input.
    explicit MidiInputs(MidiReceiver receiver);

    /// Disconnects; no message is received any more when it returns.
    ~MidiInputs();

    MidiInputs(const MidiInputs&) = delete;
    MidiInputs& operator=(const MidiInputs&) = delete;

    /// The connected devices, in alphabetical order.
    std::vector<std::string> names() const;

    /// "ALSA" or "JACK"; empty where neither has a device.
    const std::string& api() const { return api_; }

private:
    class Input;

    MidiReceiver receiver_;
    std::string api_;
    std::vector<std::unique_ptr<Input>> inputs_; // last: gone before what their threads call
};

} // namespace velmora
