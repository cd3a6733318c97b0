#pragma once

#include "midi/midiRead.h"

#include <array>
#include <cstddef>

namespace velmora {

/// Puts the parts of a system exclusive message together without allocating. Longer messages than
/// those that tune are dropped.
class ExclusiveBuffer {
public:
    /// Returns true if a part, which is not empty, begins or continues an exclusive message. Any
    /// other message, except one in real time, ends the one that has begun.
    bool isPart(MidiPacket part);

    /// Takes a part for which `isPart` was true. Returns the whole message if this was its end and
    /// it is not too long; valid until the next call.
    MidiPacket add(MidiPacket part);

private:
    std::array<std::uint8_t, 520> bytes_{};
    std::size_t size_ = 0;
    bool isOpen_ = false;    ///< A message has begun.
    bool isTooLong_ = false; ///< It does not fit.
};

} // namespace velmora
