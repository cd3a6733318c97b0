// Decodes the input as an unsaved sequence. The result is a FormatError or valid notes, which
// encode to the same number of bytes.

#include "base/FormatError.h"
#include "require.h"
#include "sequencer/UnsavedSequence.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const auto sequence = decodeUnsaved(std::as_bytes(std::span(data, size)));
        for (const Note& note : sequence.notes)
            require(note.key <= 127 && note.velocity <= 1.0F && note.start <= 1e12);
        require(encodeUnsaved(sequence).size() == size);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
