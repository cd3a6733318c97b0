#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace velmora {

/// The pages of an Ogg file (RFC 3533).
namespace ogg {

// Offsets of fields in a page. Numbers are little-endian.
constexpr std::size_t kFlags = 5;
constexpr std::size_t kSerial = 14;
constexpr std::size_t kChecksum = 22;
constexpr std::size_t kSegmentCount = 26;
constexpr std::size_t kHeader = 27;

constexpr std::size_t kLongestPage = kHeader + 255 + std::size_t{255} * 255;

/// Returns the length of the page at the start of the bytes; 0 if there is no complete page.
std::size_t pageLength(std::span<const std::uint8_t> bytes);

/// Returns the checksum that a whole page should have.
std::uint32_t checksumOf(std::span<const std::uint8_t> page);

/// Returns the number of a field.
std::uint32_t numberAt(std::span<const std::uint8_t> page, std::size_t at);

/// Writes the number of a field.
void put(std::span<std::uint8_t> page, std::size_t at, std::uint32_t number);

} // namespace ogg

} // namespace velmora
