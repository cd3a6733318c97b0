#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// Receives one complete MIDI message with running status expanded. The bytes are valid until it
/// returns. Called on a receive thread; with JACK that is its real-time thread. Each device has its
/// own thread, so several calls can run at once. Must not throw.
using MidiReceiver = std::function<void(std::span<const std::uint8_t> message)>;

/// Connections to the first source of each MIDI device that is present at construction. If two
/// devices have the same name, only the last is connected. Devices that appear later are ignored,
/// as are system exclusive, timing and active sensing messages.
class MidiInputs {
public:
    /// Connects the devices of the ALSA sequencer or, if it has none, of a running JACK server. The
    /// kernel's "Midi Through" port is used only if there is no other device. Devices that cannot
    /// be connected are logged and skipped.
    explicit MidiInputs(MidiReceiver receiver);

    /// Disconnects all devices. No message is received after this returns.
    ~MidiInputs();

    MidiInputs(const MidiInputs&) = delete;
    MidiInputs& operator=(const MidiInputs&) = delete;

    /// The names of the connected devices, in alphabetical order.
    std::vector<std::string> names() const;

    /// "ALSA" or "JACK"; empty if neither has a device.
    const std::string& api() const { return api_; }

private:
    class Input;

    MidiReceiver receiver_;
    std::string api_;
    std::vector<std::unique_ptr<Input>> inputs_; ///< Last, because their threads call `receiver_`.
};

} // namespace velmora
