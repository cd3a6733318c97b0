#pragma once

#include "import/PipeOrgan.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmora {

/// What a WAVE file says about its sound in chunks beside the samples ("Multimedia Programming
/// Interface and Data Specifications 1.0", and the sampler chunk that was added in 1994).
struct SampleChunks {
    /// The MIDI note that the sound has as recorded, in equal temperament with A at 440 Hz; the
    /// fraction is that of a semitone. Empty without a sampler chunk.
    std::optional<double> note;

    std::vector<Loop> loops; ///< The forward loops, none of them empty.

    /// The frame at which the release is marked: the first marker at or behind the end of the
    /// loops, or else the last one.
    std::optional<std::uint32_t> cue;
};

/// Reads the chunks of a file in memory; all are absent if it is not a RIFF file, nor a WavPack
/// file that was made of one. Positions are not checked against the length of the sound. Throws
/// FormatError as `RIFF::File` does.
SampleChunks readSampleChunks(std::span<const std::byte> bytes);

} // namespace velmora
