// Parses the input as a version 1 organ definition. All indices and keys of the organ are valid.

#include "import/hauptwerk1.h"
#include "require.h"

#include <span>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const auto lineEnd :
         {hauptwerk1::LineEnd::CarriageReturnLineFeed, hauptwerk1::LineEnd::LineFeed}) {
        const Organ organ =
            hauptwerk1::findPipes(hauptwerk1::readSections(bytes, lineEnd), "/nowhere");
        for (const Organ::Pipe& pipe : organ.pipes) {
            require(!pipe.file || (pipe.stop < organ.stops.size() && pipe.key >= 0 &&
                                   pipe.key < 128 && *pipe.file < organ.files.size()));
        }
    }
    return 0;
}

} // namespace velmora
