// Imports the input as a GigaSampler bank, plainly and as its maker meant it.

#include "import/gig.h"

#include "importedBank.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    importBank(readGigaSampler, Reading::Plain, {data, size});
    importBank(readGigaInstrument, Reading::Musical, {data, size});
    return 0;
}

} // namespace velmora
