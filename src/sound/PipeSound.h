#pragma once

#include "audio/Loop.h"
#include "audio/Pcm.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

/// A decoded sample file and what is known about it. Frames outside the file are ignored.
struct PipeRecording {
    Pcm pcm;
    double pitch = 0.0;                 ///< In hertz, as recorded.
    std::vector<Loop> loops{};          ///< The longest is used.
    std::optional<std::uint32_t> cue{}; ///< The frame where the release in the file begins.
    bool hasOwnRelease = true;          ///< False if what follows the loops must not be used.
};

/// A recording that is ready to be played: sounds that join without clicks and end in silence.
struct PipeSound {
    Pcm attack;               ///< Up to the end of the loop, if there is one.
    std::optional<Loop> loop; ///< Of the attack.
    Pcm release;              ///< Empty if the recording has none.
};

/// Chooses the loop and mends it if it clicks, and splits the release off. May be called on any
/// thread.
PipeSound makePipeSound(PipeRecording&& recording);

/// Returns what follows the frame `cue` of a release in a file of its own, with an end that does
/// not click. May be called on any thread.
Pcm makeReleaseSound(Pcm&& pcm, std::optional<std::uint32_t> cue);

} // namespace velmora
