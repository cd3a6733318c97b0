// Any bytes: sections, and the stops and pipes that they name.

#include "import/hauptwerk1.h"
#include "base/FormatError.h"

#include <cstdlib>
#include <span>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const auto lineEnd :
         {hauptwerk1::LineEnd::CarriageReturnLineFeed, hauptwerk1::LineEnd::LineFeed}) {
        try {
            const Organ organ =
                hauptwerk1::findPipes(hauptwerk1::readSections(bytes, lineEnd), "/nowhere");
            for (const Organ::Pipe& pipe : organ.pipes) {
                const bool sound =
                    !pipe.file || (pipe.stop < organ.stops.size() && pipe.key >= 0 &&
                                   pipe.key < 128 && *pipe.file < organ.files.size());
                if (!sound)
                    std::abort();
            }
        } catch (const FormatError&) {
        }
    }
    return 0;
}

} // namespace velmora
