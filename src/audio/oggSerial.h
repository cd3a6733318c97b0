#pragma once

#include <cstdint>

namespace velmora {

/// Gives all pages of an Ogg file of one stream this serial number, which encoders draw at random.
/// `file` is a descriptor open for reading and writing. Pages as in RFC 3533. Throws
/// std::runtime_error when it holds anything else, or cannot be read or written.
void setOggSerial(int file, std::uint32_t serial);

} // namespace velmora
