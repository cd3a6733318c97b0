#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <filesystem>
#include <span>

namespace velmora {

/// Decodes a sound file to 16-bit samples: WAV, AIFF, FLAC, Ogg and any other format of libsndfile,
/// or WavPack. The format is recognised by the contents. Samples of higher resolution are rounded,
/// and clipped at full scale. Throws FormatError if the file cannot be read or decoded or has more
/// than two channels. Safe to call on several threads at once.
Pcm decodeAudioFile(const std::filesystem::path& path);

/// Decodes the bytes of a sound file in the same way.
Pcm decodeAudio(std::span<const std::byte> image);

} // namespace velmora
