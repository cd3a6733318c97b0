#pragma once

#include "audio/Loop.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace velmora {

namespace RIFF {
class List;
} // namespace RIFF

namespace gig {

/// How a recording is to be played, from a "wsmp" chunk ("Downloadable Sounds Level 1", MIDI
/// Manufacturers Association).
struct Tuning {
    double root = 60.0; ///< The MIDI key, with a fraction, at which it sounds as recorded.
    double decibels = 0.0;
    std::vector<Loop> loops; ///< None of them is empty; they may lie beyond the recording.
};

/// One of the recordings of a region, in the terms of GigaSampler a "dimension region".
struct Recording {
    std::uint32_t wave = 0;             ///< A position in the table of waves.
    std::optional<std::uint32_t> right; ///< That of the right side if `wave` is the left one.
    std::optional<Tuning> tuning;       ///< Empty if it is that of the wave.
    bool followsKeys = true;            ///< False if it has the same pitch on all keys.
    bool isRelease = false;             ///< It sounds when the key is released.
    std::size_t layer = 0;              ///< The layers of a region sound together.
    int softest = 0;                    ///< MIDI velocity.
    int loudest = 127;
};

/// Keys and what sounds on them. Recordings for the same velocities take turns.
struct Region {
    int lowestKey = 0;
    int highestKey = 127;
    std::vector<Recording> recordings;
};

/// Reads a list "rgn ". The layout follows from the size of its chunk "3lnk". Where a controller or
/// a key switch chooses between recordings, it is the one for their lowest position.
Region readRegion(const RIFF::List& region);

/// Reads the chunk "wsmp" of a region, a recording or a wave; empty if there is none.
std::optional<Tuning> readTuning(const RIFF::List& owner);

} // namespace gig

} // namespace velmora
