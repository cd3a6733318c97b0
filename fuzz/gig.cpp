// Imports the input as a GigaSampler bank.

#include "import/gig.h"

#include "importedBank.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    importBank(readGigaSampler, {data, size});
    return 0;
}

} // namespace velmora
