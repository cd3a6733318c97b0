// Reads the input as the organ definition in text form that sets of today have.

#include "import/sectionedOrgan.h"

#include "base/FormatError.h"
#include "checkedOrgan.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        checkOrgan(readSectionedOrgan({reinterpret_cast<const char*>(data), size}, nullptr));
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
