#pragma once

#include "audio/DecodingOptions.h"
#include "audio/ReleaseAlignment.h"
#include "import/PipeOrgan.h"
#include "sound/PipeSound.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// The recordings of a pipe, decoded and ready to be played.
struct PipeVoice {
    struct Attack {
        std::size_t index = 0; ///< In the pipe's list.
        PipeSound sound;
        /// The note in the sample file, as in `SampleChunks`, or that was measured instead.
        std::optional<double> note;

        /// How the recording's own release continues it; null if it has none.
        std::shared_ptr<const ReleaseAlignment> alignment;
    };

    struct Release {
        std::size_t index = 0; ///< In the pipe's list.
        Pcm sound;
        std::optional<double> note; ///< The note in the sample file.

        /// How it continues each of `attacks`.
        std::vector<std::shared_ptr<const ReleaseAlignment>> alignments;
    };

    std::vector<Attack> attacks;
    std::vector<Release> releases;

    /// The files that could not be used, by their index in the organ, and why.
    std::vector<std::pair<std::size_t, std::string>> skipped;

    std::size_t bytes() const;
};

/// What is done about an attack whose pitch neither the definition nor its file gives.
enum class UnknownPitch : std::uint8_t {
    AsExpected, ///< It counts as the one that is expected of the pipe.
    Measured,   ///< It is measured, if the recording has a clear one near the expected one.
};

/// Decodes the files of a pipe. May be called on any thread. Throws std::bad_alloc.
PipeVoice loadPipeVoice(const PipeOrgan& organ, const PipeOrgan::Pipe& pipe,
                        const DecodingOptions& options, UnknownPitch unknownPitch);

} // namespace velmora
