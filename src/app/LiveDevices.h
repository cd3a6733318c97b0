#pragma once

#include "app/LiveDevice.h"
#include "midi/DeviceFilter.h"
#include "midi/MidiReceiver.h"
#include "platform/PriorityMutex.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace velmora {

/// A MIDI device that is connected or that the user has chosen settings for.
struct KnownDevice {
    std::string name;
    bool isConnected = false;
    std::uint64_t messages = 0; ///< How many it has sent since the program started.
    DeviceSettings settings;
};

/// Plays the MIDI devices according to the user's settings, which are remembered by their names.
class LiveDevices : public MidiReceiver {
public:
    /// Reads the settings from the preferences.
    explicit LiveDevices(AppDelegate& application);

    /// The devices in alphabetical order. May be called on any thread.
    std::vector<KnownDevice> devices() const;

    /// Returns the name of a device that is or was connected. May be called on any thread.
    std::string getName(std::size_t number) const;

    /// Changes the settings of a device at once and remembers them. Main thread only.
    void setSettings(const std::string& name, DeviceSettings settings);

    void arrived(const MidiDevice& device) override;
    void departed(const MidiDevice& device) override;
    void received(std::size_t device, MidiPacket message, double time) override;
    void receivedExclusive(std::size_t device, MidiPacket message) override;

private:
    /// A device that is or was connected. It changes its name if its number is used again.
    struct Slot {
        Slot(AppDelegate& application, std::size_t number) : device(application, number) {}

        std::string name;
        bool isConnected = false;
        std::atomic<std::uint64_t> messages{0};
        PriorityMutex playing; ///< Guards the members below. Held for one message at most.
        DeviceFilter filter;
        LiveDevice device;
    };

    DeviceSettings settingsOf(const std::string& name) const;
    void store() const;

    AppDelegate& application_;
    mutable std::mutex mutex_; ///< Guards the settings, and names and connections of the slots.
    std::map<std::string, DeviceSettings> settings_; ///< Those that differ from the defaults.
    std::array<std::unique_ptr<Slot>, kMidiDevices> slots_; ///< By number; they are never removed.
};

} // namespace velmora
