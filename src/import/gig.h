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

/// The version of a bank, from "vers": two 32-bit words in a DLS file, each low half first.
struct version {
    version() = default;

    /// Logs what it reads; words that are not there are 0.
    explicit version(const RIFF::Chunk& chunk);

    /// 3 where a region names its wave at another place than in version 2.
    std::uint16_t major() const { return words[1]; }

    std::array<std::uint16_t, 4> words{};
};

} // namespace gig

/// Reads a GigaSampler bank: each of its instruments becomes a stop, whose regions are laid on the
/// keys from 21 upwards, each with its first wave at the wave's own pitch. Waves that cannot be
/// decoded are left out and reported. Throws FormatError for a file that is no bank or has nothing
/// to sound, Cancelled where the host gives up.
void readGigaSampler(const std::filesystem::path& path, Import& import);

/// The same of an opened bank.
void readGigaSampler(const RIFF::File& file, Import& import);

} // namespace velmora
