#pragma once

#include "audio/DecodingOptions.h"
#include "audio/Pcm.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// Returns true if a file that starts with these bytes is a WavPack file.
bool isWavPack(std::span<const std::byte> start);

/// Decodes the bytes of a WavPack file; `name` is for the log. Throws FormatError as `decodeAudio`
/// does.
Pcm decodeWavPack(std::span<const std::byte> image, const std::string& name,
                  const DecodingOptions& options);

/// Returns the RIFF file that a WavPack file was made of, with an empty "data" chunk: WavPack keeps
/// the other chunks as they are. Empty if it was made of another file or is damaged.
std::vector<std::byte> wavPackRiff(std::span<const std::byte> image);

} // namespace velmora
