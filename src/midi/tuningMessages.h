#pragma once

#include "midi/midiRead.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The pitch of each key as a place on a keyboard in equal temperament with A at 440 Hz: 60.5 is a
/// quarter tone above middle C.
using KeyPlaces = std::array<double, 128>;

/// What the tuning messages of a device have told so far.
struct ReceivedTuning {
    /// Equal temperament without a name.
    ReceivedTuning();

    std::string name; ///< That of the last dump, in ASCII; empty if it has none.
    KeyPlaces places;
};

/// The length of the longest tuning message in bytes.
constexpr std::size_t kLongestTuningMessage = 517;

/// Returns true for a system exclusive message of a kind that `readTuningMessage` reads.
bool isTuningMessage(MidiPacket message);

/// Reads a message of the MIDI Tuning Standard ("MIDI 1.0 Detailed Specification", and "MIDI Tuning
/// Updated Specification", CA-020 and CA-021, MIDI Manufacturers Association): a bulk dump, a
/// change of single notes, or an octave of one or two bytes a note, for any device, tuning program
/// and channel. Returns false, and changes nothing, if the message is damaged or of another kind.
bool readTuningMessage(MidiPacket message, ReceivedTuning& tuning);

/// Returns a bulk dump for tuning program 0 of all devices. The first 16 characters of the name
/// are kept; those that are not ASCII become question marks. Places are limited to 0…127.9999.
std::vector<std::uint8_t> writeBulkDump(std::string_view name, const KeyPlaces& places);

/// Returns a real-time message that tunes the pitch classes of all channels, in cents above equal
/// temperament, limited to ±100.
std::vector<std::uint8_t> writeOctaveTuning(std::span<const double, 12> cents);

/// Returns a real-time message that moves single keys, at most 127, in tuning program 0.
std::vector<std::uint8_t> writeKeyChanges(std::span<const std::uint8_t> keys,
                                          const KeyPlaces& places);

} // namespace velmora
