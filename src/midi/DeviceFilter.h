#pragma once

#include "midi/messages.h"
#include "midi/midiRead.h"

#include <array>
#include <atomic>
#include <cstdint>

namespace velmora {

/// What the user has chosen for a MIDI device. Its alignment lets the processor exchange it whole.
struct alignas(4) DeviceSettings {
    std::int16_t keyOffset = 0; ///< In semitones.
    std::int8_t channel = 0;    ///< The only channel to listen to, 1…16, or 0 for all.
    bool isOn = true;

    bool operator==(const DeviceSettings&) const = default;
};

/// The greatest offset of keys, up and down.
constexpr int kGreatestKeyOffset = 48;

/// Lets through what a device is to play. A key that is held when the settings change is still
/// released as it was pressed.
class DeviceFilter {
public:
    /// May be called on any thread.
    void setSettings(DeviceSettings settings) { settings_ = settings; }
    DeviceSettings settings() const { return settings_; }

    /// Returns what is to be played of a message, or nothing. Valid until the next call. Neither
    /// waits nor allocates.
    MidiPacket read(MidiPacket message);

    /// Forgets which keys are held.
    void reset();

private:
    static constexpr std::int16_t kReleased = INT16_MAX;
    using Offsets = std::array<std::array<std::int16_t, 128>, midi::kChannels>;

    static Offsets allReleased();
    MidiPacket readNote(MidiPacket message, bool isWanted);

    std::atomic<DeviceSettings> settings_{};
    static_assert(decltype(settings_)::is_always_lock_free);

    /// The offset with which each key of each channel was pressed, or kReleased.
    Offsets offsets_ = allReleased();
    std::array<std::uint8_t, 3> note_{};
};

} // namespace velmora
