#include "audio/oggSerial.h"

#include <unistd.h>

#include <array>
#include <cstring>
#include <numeric>
#include <span>
#include <stdexcept>
#include <vector>

namespace velmora {

namespace {

// Offsets of fields in a page. Numbers are little-endian.
constexpr std::size_t kSerial = 14;
constexpr std::size_t kChecksum = 22;
constexpr std::size_t kSegmentCount = 26;
constexpr std::size_t kHeader = 27;
constexpr std::size_t kLongestPage = kHeader + 255 + std::size_t{255} * 255;

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

std::uint32_t checksum(std::span<const std::uint8_t> bytes)
{
    static constexpr auto kChecksums = makeChecksums();
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = (value << 8) ^ kChecksums[(value >> 24) ^ byte];
    return value;
}

void put(std::span<std::uint8_t> page, std::size_t at, std::uint32_t number)
{
    for (std::size_t i = 0; i < 4; ++i)
        page[at + i] = static_cast<std::uint8_t>(number >> (8 * i));
}

/// Returns the length of the page at the start of the bytes; 0 if there is no complete page.
std::size_t pageLength(std::span<const std::uint8_t> bytes)
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

} // namespace

void setOggSerial(int file, std::uint32_t serial)
{
    std::vector<std::uint8_t> buffer(kLongestPage);
    off_t position = 0;
    for (;;) {
        const ssize_t got = pread(file, buffer.data(), buffer.size(), position);
        if (got == 0)
            return;
        const std::span bytes(buffer.data(), got < 0 ? 0 : static_cast<std::size_t>(got));
        const std::span page = bytes.first(pageLength(bytes));
        if (page.empty())
            throw std::runtime_error("the Ogg file cannot be read back");
        put(page, kSerial, serial);
        put(page, kChecksum, 0);
        put(page, kChecksum, checksum(page));
        const auto length = static_cast<ssize_t>(page.size());
        if (pwrite(file, page.data(), page.size(), position) != length)
            throw std::runtime_error("the Ogg file cannot be written");
        position += length;
    }
}

} // namespace velmora
