#pragma once

#include <array>
#include <cstdint>
#include <filesystem>

namespace velmora {

struct Import;

namespace RIFF {
class Chunk;
class File;
} // namespace RIFF

namespace gig {

/// The version of a bank, from its "vers" chunk: the two 32-bit words of a DLS version, each with
/// its low half first.
struct version {
    version() = default;

    /// Reads and logs the words. Missing words are 0.
    explicit version(const RIFF::Chunk& chunk);

    /// The major version. In version 3 a region stores its wave index at another offset.
    std::uint16_t major() const { return words[1]; }

    std::array<std::uint16_t, 4> words{};
};

} // namespace gig

/// Imports a GigaSampler bank. Each of its instruments becomes a stop; its regions are assigned to
/// consecutive keys from 21 upwards, each with its first wave at that wave's own pitch. Waves that
/// cannot be decoded are skipped. Throws FormatError if the file is not a bank or nothing sounds,
/// and Cancelled.
void readGigaSampler(const std::filesystem::path& path, Import& import);

/// Imports a bank that is already open.
void readGigaSampler(const RIFF::File& file, Import& import);

/// Imports an instrument of a GigaSampler bank as its maker meant it: its regions lie on their own
/// keys, with tuning, loops, stereo, velocity layers and releases. Which one is the import's choice
/// if there are several. Each layer becomes a stop. Throws as above.
void readGigaInstrument(const std::filesystem::path& path, Import& import);

/// Imports an instrument of a bank that is already open.
void readGigaInstrument(const RIFF::File& file, Import& import);

} // namespace velmora
