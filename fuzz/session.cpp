// Decodes the input as a session file. The result is a FormatError or a session that comes back
// from its own file.

#include "app/Session.h"
#include "base/FormatError.h"
#include "require.h"

namespace velmora {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const std::string_view text(reinterpret_cast<const char*>(data), size);
        const std::string written = encodeSession(decodeSession(text, "/none"), "/none");
        require(encodeSession(decodeSession(written, "/none"), "/none") == written);
    } catch (const FormatError&) {
        return 0;
    }
    return 0;
}

} // namespace velmora
