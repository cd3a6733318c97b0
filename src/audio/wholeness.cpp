#include "audio/wholeness.h"

#include "audio/oggPages.h"
#include "base/FormatError.h"

#include <cstdint>
#include <string_view>

namespace velmora {

namespace {

using Bytes = std::span<const std::uint8_t>;

bool isTag(Bytes bytes, std::size_t at, std::string_view tag)
{
    return bytes.size() >= at + tag.size() &&
           std::string_view(reinterpret_cast<const char*>(bytes.data()) + at, tag.size()) == tag;
}

void checkOgg(Bytes bytes)
{
    constexpr unsigned kEndOfStream = 4;
    bool isEnded = false;
    while (!bytes.empty()) {
        const Bytes page = bytes.first(ogg::pageLength(bytes));
        if (page.empty() || ogg::numberAt(page, ogg::kChecksum) != ogg::checksumOf(page))
            throw FormatError("is damaged or cut short");
        isEnded = (page[ogg::kFlags] & kEndOfStream) != 0;
        bytes = bytes.subspan(page.size());
    }
    if (!isEnded)
        throw FormatError("is cut short");
}

void checkWav(Bytes bytes)
{
    constexpr std::size_t kRiffHeader = 12, kHeader = 8;
    // Programs that write to a pipe claim the greatest size there is.
    constexpr std::uint32_t kUnknown = 0x7FFF'0000;
    for (std::size_t at = kRiffHeader; at + kHeader <= bytes.size();) {
        const std::uint32_t size = ogg::numberAt(bytes, at + 4);
        if (isTag(bytes, at, "data")) {
            if (size > bytes.size() - at - kHeader && size < kUnknown)
                throw FormatError("is cut short");
            return;
        }
        at += kHeader + size + size % 2;
    }
}

} // namespace

void checkWholeness(std::span<const std::byte> image)
{
    const Bytes bytes(reinterpret_cast<const std::uint8_t*>(image.data()), image.size());
    if (isTag(bytes, 0, "OggS"))
        checkOgg(bytes);
    else if (isTag(bytes, 0, "RIFF") && isTag(bytes, 8, "WAVE"))
        checkWav(bytes);
}

} // namespace velmora
