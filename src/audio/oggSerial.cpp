#include "audio/oggSerial.h"

#include "audio/oggPages.h"

#include <unistd.h>

#include <span>
#include <stdexcept>
#include <vector>

namespace velmora {

void setOggSerial(int file, std::uint32_t serial)
{
    std::vector<std::uint8_t> buffer(ogg::kLongestPage);
    off_t position = 0;
    for (;;) {
        const ssize_t got = pread(file, buffer.data(), buffer.size(), position);
        if (got == 0)
            return;
        const std::span bytes(buffer.data(), got < 0 ? 0 : static_cast<std::size_t>(got));
        const std::span page = bytes.first(ogg::pageLength(bytes));
        if (page.empty())
            throw std::runtime_error("the Ogg file cannot be read back");
        ogg::put(page, ogg::kSerial, serial);
        ogg::put(page, ogg::kChecksum, ogg::checksumOf(page));
        const auto length = static_cast<ssize_t>(page.size());
        if (pwrite(file, page.data(), page.size(), position) != length)
            throw std::runtime_error("the Ogg file cannot be written");
        position += length;
    }
}

} // namespace velmora
