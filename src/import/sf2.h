#pragma once

#include <filesystem>

namespace velmora {

struct Import;

namespace RIFF {
class File;
}

/// Imports a SoundFont 2 bank. Each of its instruments becomes a stop; presets and modulators are
/// ignored. Samples that cannot be played are skipped. Throws FormatError if the file is not a bank
/// or nothing sounds, and Cancelled.
void readSoundFont(const std::filesystem::path& path, Import& import);

/// Imports a bank that is already open.
void readSoundFont(const RIFF::File& file, Import& import);

/// Imports a SoundFont 2 bank as its maker meant the sounds: each of its instruments becomes a stop
/// with loops, tuning, stereo and velocity layers. Envelopes, filters and modulators are ignored.
/// Throws as above.
void readSoundFontStops(const std::filesystem::path& path, Import& import);

/// Imports a bank that is already open.
void readSoundFontStops(const RIFF::File& file, Import& import);

} // namespace velmora
