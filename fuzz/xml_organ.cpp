// Reads the input as an XML organ definition with its console.

#include "import/xmlPipeOrgan.h"

#include "base/FormatError.h"
#include "checkedOrgan.h"

#include <sys/mman.h>
#include <unistd.h>

#include <string>

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int file = memfd_create("definition", MFD_CLOEXEC);
    require(file >= 0 && write(file, data, size) == static_cast<ssize_t>(size));
    try {
        checkOrgan(readXmlPipeOrgan("/proc/self/fd/" + std::to_string(file)));
    } catch (const FormatError&) {
        close(file);
        return 0;
    }
    close(file);
    return 0;
}

} // namespace velmora
