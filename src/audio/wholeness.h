#pragma once

#include <cstddef>
#include <span>

namespace velmora {

/// Throws FormatError if a WAV or Ogg file is cut short or has changed since it was written, which
/// the decoder would pass over. Says nothing about other formats, whose decoders notice it.
void checkWholeness(std::span<const std::byte> image);

} // namespace velmora
