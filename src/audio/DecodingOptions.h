#pragma once

#include "base/MemoryGuard.h"

#include <cstdint>

namespace velmora {

class DecodedCache;

/// What becomes of a damaged sound file.
enum class Damage : std::uint8_t {
    Kept,    ///< What can be decoded is the sound.
    Refused, ///< The file cannot be decoded.
};

/// How sound files are decoded.
struct DecodingOptions {
    Damage damage = Damage::Kept;
    bool to16Bit = false; ///< Rounds all samples to 16 bits.
    bool toMono = false;  ///< Mixes the channels of stereo files.

    /// What grants the memory for the samples; must outlive the decoding.
    MemoryGuard* memory = &MemoryGuard::machine();

    /// Where the samples of compressed files are kept; null if they are not.
    DecodedCache* cache = nullptr;
};

} // namespace velmora
