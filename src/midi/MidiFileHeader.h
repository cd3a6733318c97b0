#pragma once

#include "midi/MidiFileCursor.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace velmora {

/// A chunk of a Standard MIDI File.
struct MidiFileChunk {
    std::string_view id;
    MidiFileCursor body;
    std::size_t missing = 0; ///< How many bytes of the body the file does not have.
};

/// What the first chunk of a Standard MIDI File says.
struct MidiFileHeader {
    std::uint16_t format; ///< 0, 1 or 2.
    std::size_t tracks;   ///< At least 1.
    std::uint16_t division;
    double ticksPerBeat; ///< A beat of a file with SMPTE time is half a second.
    bool hasFrames;      ///< True if the file uses SMPTE time.
};

/// Returns a cursor at the first chunk of a file, bare or wrapped in RIFF ("RMID").
MidiFileCursor openMidiFile(std::span<const std::byte> bytes);

/// Reads the first chunk. Throws FormatError if it is invalid.
MidiFileHeader readMidiFileHeader(MidiFileCursor& file);

/// Reads the next chunk, which may be cut short. Throws FormatError if its own header is.
MidiFileChunk readMidiFileChunk(MidiFileCursor& file);

/// Throws FormatError if the chunk, which began at the byte `at`, is cut short.
void requireWhole(const MidiFileChunk& chunk, std::size_t at);

} // namespace velmora
