#pragma once

#include "sequencer/SequenceHost.h"

#include <array>
#include <string>

namespace velmora {

struct MidiFileEvents;

/// One voice of a piece: a MIDI channel.
struct Voice {
    std::string name; ///< UTF-8; empty if it has none.
    PartSound sound;

    // What follows is never written to a file.
    bool isMuted = false;
    bool isSolo = false;   ///< While any voice is, only such voices sound.
    bool isLocked = false; ///< Its notes can be neither selected nor edited.

    bool operator==(const Voice&) const = default;
};

/// The voices of a piece by their channels.
struct Voices : std::array<Voice, midi::kChannels> {
    /// False if every voice plays the program of the instrument, whatever its own is.
    bool arePrograms = true;

    /// Returns how the channels sound.
    VoiceSounds sounds() const;

    bool operator==(const Voices&) const = default;
};

/// Returns the voices of a new piece: the tenth plays drums, the others the instrument itself.
Voices newVoices();

/// Returns the voices as a file has them: the first program of each channel, with its bank, the
/// volume at its first note, and its name: that of the instrument, or that of the track if the
/// channel has one to itself.
Voices voicesOf(const MidiFileEvents& file);

} // namespace velmora
