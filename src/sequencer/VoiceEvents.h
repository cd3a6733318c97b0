#pragma once

#include "midi/MidiFileEvents.h"
#include "midi/messages.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace velmora {

/// The events of a file that say how a voice begins; null where there are none.
struct VoiceEvents {
    static constexpr std::uint64_t kNever = std::numeric_limits<std::uint64_t>::max();

    std::uint64_t firstNote = kNever; ///< The tick.
    const FileEvent* program = nullptr;
    const FileEvent* bank = nullptr;
    const FileEvent* volume = nullptr;
    const FileEvent* name = nullptr; ///< Of its track, or of an instrument on its channel.
    std::size_t track = 0;           ///< The first one with its notes.
    bool hasOwnTrack = false;        ///< No other voice has notes on that track.
};

/// Finds them for each channel. The file must outlive the result.
std::array<VoiceEvents, midi::kChannels> voiceEventsOf(const MidiFileEvents& file);

} // namespace velmora
