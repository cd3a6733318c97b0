#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <filesystem>
#include <span>

namespace velmora {

/// Decodes a sound file as 16-bit sound: WAV, AIFF, FLAC, Ogg and whatever else libsndfile reads,
/// or WavPack, which is known by its magic under any name. Finer samples are rounded, those beyond
/// full scale clipped. Throws FormatError when the file cannot be read, is no sound file or has
/// more than two channels. Safe on several threads at once.
Pcm decodeAudioFile(const std::filesystem::path& path);

/// The same for the bytes of a sound file.
Pcm decodeAudio(std::span<const std::byte> image);

} // namespace velmora
