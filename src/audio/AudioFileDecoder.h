#pragma once

#include "audio/DecodingOptions.h"
#include "audio/Pcm.h"

#include <cstddef>
#include <filesystem>
#include <span>

namespace velmora {

/// Decodes a sound file: WAV, AIFF, FLAC, Ogg and any other format of libsndfile, or WavPack. The
/// format is recognised by the contents. Samples of more than 16 bits become floats, except those
/// of lossy formats. Throws FormatError if the file cannot be read or decoded or has more
/// than two channels, and MemoryShortage. Safe to call on several threads at once.
Pcm decodeAudioFile(const std::filesystem::path& path, const DecodingOptions& options = {});

/// Decodes the bytes of a sound file in the same way.
Pcm decodeAudio(std::span<const std::byte> image, const DecodingOptions& options = {});

} // namespace velmora
