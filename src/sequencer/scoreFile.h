#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace velmora {

struct Piece;

/// True if a file is a score in MusicXML that can be opened: by its extension, .musicxml or .mxl in
/// any letter case, or for .xml by its beginning.
bool isReadableScore(const std::filesystem::path& path);

/// Returns the bytes of a Standard MIDI File, or those of the one that says the same as a score.
/// Throws FormatError, and std::length_error if a MIDI file cannot hold the score.
std::vector<std::byte> midiBytesOf(const std::filesystem::path& path);

/// Returns a piece as a Standard MIDI File of format 1: tempos and signatures, then a track for
/// each part with its name, program, lyrics and notes. Each part has a channel of its own as long
/// as there are any. Throws std::length_error if there are more events than a file can hold.
std::string midiFileOf(const Piece& piece);

} // namespace velmora
