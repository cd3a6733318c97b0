#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <span>
#include <string>

namespace velmora {

/// Returns true if a file that starts with these bytes is a WavPack file.
bool isWavPack(std::span<const std::byte> start);

/// Decodes the bytes of a WavPack file; `name` is for the log. Throws FormatError as `decodeAudio`
/// does.
Pcm decodeWavPack(std::span<const std::byte> image, const std::string& name);

} // namespace velmora
