#include "audio/oggPages.h"

#include <array>
#include <cstring>
#include <numeric>

namespace velmora {

namespace {

constexpr std::array<std::uint32_t, 256> makeChecksums()
{
    std::array<std::uint32_t, 256> checksums{};
    for (std::uint32_t byte = 0; byte < checksums.size(); ++byte) {
        std::uint32_t value = byte << 24;
        for (int bit = 0; bit < 8; ++bit)
            value = (value << 1) ^ ((value >> 31) * 0x04C11DB7U);
        checksums[byte] = value;
    }
    return checksums;
}

} // namespace

std::size_t ogg::pageLength(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() < kHeader || std::memcmp(bytes.data(), "OggS", 4) != 0)
        return 0;
    const std::size_t segments = bytes[kSegmentCount];
    if (bytes.size() < kHeader + segments)
        return 0;
    const auto sizes = bytes.subspan(kHeader, segments);
    const std::size_t length = std::accumulate(sizes.begin(), sizes.end(), kHeader + segments);
    return length <= bytes.size() ? length : 0;
}

std::uint32_t ogg::checksumOf(std::span<const std::uint8_t> page)
{
    static constexpr auto kChecksums = makeChecksums();
    std::uint32_t value = 0;
    for (std::size_t at = 0; at < page.size(); ++at) {
        // The checksum's own field counts as 0.
        const bool isOwn = at >= kChecksum && at < kChecksum + 4;
        value = (value << 8) ^ kChecksums[(value >> 24) ^ (isOwn ? 0U : page[at])];
    }
    return value;
}

std::uint32_t ogg::numberAt(std::span<const std::uint8_t> page, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number << 8 | page[at + i];
    return number;
}

void ogg::put(std::span<std::uint8_t> page, std::size_t at, std::uint32_t number)
{
    for (std::size_t i = 0; i < 4; ++i)
        page[at + i] = static_cast<std::uint8_t>(number >> (8 * i));
}

} // namespace velmora
