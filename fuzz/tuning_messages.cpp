// Reads the input as tuning messages, each preceded by its length, which arrive in parts of up to
// 63 bytes.

#include "midi/ExclusiveBuffer.h"
#include "midi/tuningMessages.h"
#include "require.h"

#include <algorithm>
#include <vector>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ReceivedTuning tuning;
    ExclusiveBuffer buffer;
    for (std::size_t at = 0; at < size;) {
        const std::size_t length = std::min<std::size_t>(data[at] % 64, size - at - 1);
        // Each part has its own buffer, so that sanitizers detect reads past its end.
        const std::vector<std::uint8_t> part(data + at + 1, data + at + 1 + length);
        at += 1 + length;
        if (part.empty() || !buffer.isPart(part))
            continue;
        const MidiPacket packet = buffer.add(part);
        const std::vector<std::uint8_t> message(packet.begin(), packet.end());
        const KeyPlaces before = tuning.places;
        if (!readTuningMessage(message, tuning))
            require(tuning.places == before);
        for (const double place : tuning.places)
            require(place >= -1.0 && place <= 128.0);
        ReceivedTuning copy;
        require(readTuningMessage(writeBulkDump(tuning.name, tuning.places), copy));
        require(copy.name == tuning.name);
    }
    return 0;
}

} // namespace velmora
