#pragma once

#include <cstdint>

namespace velmora {

/// Replaces the serial number, which encoders choose at random, in every page of an Ogg file that
/// has one stream (RFC 3533). `file` is a descriptor that is open for reading and writing. Throws
/// std::runtime_error if the file is not an Ogg file or cannot be read or written.
void setOggSerial(int file, std::uint32_t serial);

} // namespace velmora
