#pragma once

#include "audio/MusicDevice.h"
#include "midi/MidiReceiver.h"
#include "midi/messages.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>

namespace velmora {

using KeySet = std::bitset<kKeys>;

/// How many divisions of an organ can be played, or parts of an ensemble.
constexpr std::size_t kDivisions = kParts;

/// The part that live keys play if they sound like a voice; it follows those of the channels.
constexpr std::size_t kLivePart = midi::kChannels + 1;
static_assert(kLivePart < kDivisions);

/// The keys of each division. Those of an instrument without divisions are the first.
using DivisionKeys = std::array<KeySet, kDivisions>;

/// Numbers whatever can hold a key: the mouse, the sequencer, the letters of the computer keyboard,
/// and each channel of each MIDI device.
using KeySource = std::size_t;

constexpr KeySource kMouse = 0;
constexpr KeySource kSequencer = 1;
constexpr KeySource kLetters = 2;

constexpr KeySource kFirstDevice = 3;

/// The number of sources.
constexpr std::size_t kKeySources = kFirstDevice + kMidiDevices * midi::kChannels;

/// The source for a channel, 0…15, of a MIDI device, 0…kMidiDevices − 1.
constexpr KeySource deviceSource(std::size_t device, std::size_t channel)
{
    return kFirstDevice + device * midi::kChannels + channel;
}

/// Knows who holds each key of each division, by hand or with a pedal. A key sounds until nobody
/// holds it.
class KeyHolders {
public:
    void press(std::size_t division, std::size_t key, KeySource source);

    /// Releases a key by hand. The source's sustain pedal goes on holding it if it is down.
    void release(std::size_t division, std::size_t key, KeySource source);

    /// Moves the sustain pedal of a source, which holds every key that the source releases while it
    /// is down. Returns the keys that nobody holds any more.
    DivisionKeys setSustain(KeySource source, bool down);

    /// Moves the sostenuto pedal of a source, which holds the keys that are down when it is
    /// pressed. Returns the keys that nobody holds any more.
    DivisionKeys setSostenuto(KeySource source, bool down);

    /// Releases every key and pedal of a source. Returns the keys that nobody holds any more.
    DivisionKeys releaseAll(KeySource source);

    /// Releases every key. Pedals that are down stay down.
    void clear();

    /// True if anybody holds a key, by hand or with a pedal.
    bool isHeld(std::size_t division, std::size_t key) const { return held_[division][key] > 0; }

    /// True if anybody holds a key of any division.
    bool isHeld(std::size_t key) const;

    /// True if a source holds a key by hand.
    bool isPressed(std::size_t division, std::size_t key, KeySource source) const
    {
        return holders_[source].pressed[division][key];
    }

    /// True if the user holds a key by hand on any division.
    bool isPressed(std::size_t key) const { return pressed_[key] > 0; }

private:
    struct Holder {
        DivisionKeys pressed, sustained, sostenuto;
        bool sustainIsDown = false;
        bool sostenutoIsDown = false;
    };

    void hold(DivisionKeys& keys, std::size_t division, std::size_t key);
    /// Removes all keys. Adds those that nobody holds any more to `free`.
    void drop(DivisionKeys& keys, DivisionKeys& free);

    std::array<Holder, kKeySources> holders_;
    /// How many sets contain each key.
    std::array<std::array<std::uint16_t, kKeys>, kDivisions> held_{};
    std::array<std::uint16_t, kKeys> pressed_{}; ///< How many live sources press each key.
};

} // namespace velmora
