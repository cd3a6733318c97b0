// Decodes the input as an unsaved sequence. The result is a FormatError or a sequence with valid
// notes that stays the same when it is encoded and decoded again.

#include "base/FormatError.h"
#include "require.h"
#include "sequencer/UnsavedSequence.h"

#include <string>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    UnsavedSequence sequence;
    try {
        sequence = decodeUnsaved(std::as_bytes(std::span(data, size)));
    } catch (const FormatError&) {
        return 0;
    }
    for (const Note& note : sequence.notes)
        require(note.key <= 127 && note.velocity <= 1.0F && note.start <= 1e12);
    const std::string encoded = encodeUnsaved(sequence);
    require(encodeUnsaved(decodeUnsaved(std::as_bytes(std::span(encoded)))) == encoded);
    return 0;
}

} // namespace velmora
