#pragma once

#include "midi/MidiReceiver.h"
#include "midi/MidiService.h"

#include <array>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace velmora {

/// Gives devices their names and numbers.
class DeviceNumbers {
public:
    /// Returns the device for a port of that name. `present` are the connected devices, fewer than
    /// kMidiDevices.
    MidiDevice add(const std::string& name, const std::vector<MidiDevice>& present);

private:
    std::array<std::string, kMidiDevices> names_; ///< The last device of each number.
};

/// Keeps every MIDI device connected that is present: a device that appears is connected within a
/// second, and one that returns is connected again. Messages for synchronisation are left out.
class MidiInputs {
public:
    /// Connects the devices of the ALSA sequencer and of the JACK server. Then watches them until
    /// it is destroyed. Devices that cannot be connected are logged and tried again.
    explicit MidiInputs(MidiReceiver& receiver);

    /// Watches other services.
    MidiInputs(MidiReceiver& receiver, std::vector<std::unique_ptr<MidiService>> services);

    /// Disconnects all devices; they count as departed. No message is received after this returns.
    ~MidiInputs();

    MidiInputs(const MidiInputs&) = delete;
    MidiInputs& operator=(const MidiInputs&) = delete;

    /// The names of the connected devices, in alphabetical order.
    std::vector<std::string> names() const;

    /// The services that the connected devices belong to, such as "ALSA" or "ALSA, JACK".
    std::string services() const;

private:
    struct Input {
        MidiPort port;
        MidiDevice device;
        std::unique_ptr<MidiConnection> connection;
    };

    void watch();
    void update();
    void disconnect(const std::vector<MidiPort>& wanted);
    void connect(const MidiPort& port);
    bool isConnected(const MidiPort& port) const;

    MidiReceiver& receiver_;
    std::vector<std::unique_ptr<MidiService>> services_;
    DeviceNumbers numbers_;
    std::set<std::string> failed_; ///< The devices whose failure has been logged.
    std::vector<Input> inputs_;    ///< Changed by the watching thread only.
    mutable std::mutex mutex_;     ///< Guards the list of inputs against readers on other threads.
    int stop_;                     ///< An eventfd that ends the watching thread.
    std::thread thread_;
};

/// Returns the ports to connect. What JACK repeats of ALSA's devices is left out, and so is the
/// kernel's "Midi Through" port if there is any other device.
std::vector<MidiPort> wantedPorts(std::vector<MidiPort> ports);

} // namespace velmora
