#pragma once

#include "midi/messages.h"
#include "sequencer/Sequence.h"
#include "sound/keys.h"

#include <bitset>
#include <cstdint>

namespace velmora {

/// The notes of a piece that the user plays in a practice session: those of some channels, on a
/// range of keys. Everything else plays along.
struct PracticePart {
    std::bitset<midi::kChannels> channels = ~std::bitset<midi::kChannels>();
    std::uint32_t lowestKey = 0;
    std::uint32_t highestKey = kKeys - 1;

    bool contains(const Note& note) const
    {
        return channels[note.channel % midi::kChannels] && lowestKey <= note.key &&
               note.key <= highestKey;
    }
};

} // namespace velmora
