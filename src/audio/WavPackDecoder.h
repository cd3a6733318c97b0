#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <span>

namespace velmora {

/// Whether a file that begins with these bytes is a WavPack file.
bool isWavPack(std::span<const std::byte> beginning);

/// Decodes the bytes of a WavPack file. Throws FormatError as `decodeAudio` does.
Pcm decodeWavPack(std::span<const std::byte> image);

} // namespace velmora
