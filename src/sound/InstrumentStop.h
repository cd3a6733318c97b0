#pragma once

#include "sound/LoadState.h"
#include "sound/Sample.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <string>

namespace velmora {

class Temperament;

/// A rank of up to 128 samples, one for each MIDI key, with a volume of its own.
struct InstrumentStop {
    /// Gives a key beyond the rank's own keys the sound of its lowest or highest key, as
    /// `Sample::setBuffer` does.
    void extend(int key, const Sound& sound, double rootPitch);

    /// Retunes the keys `lo` to `hi` inclusive.
    void tune(const Temperament& temperament, int lo, int hi);

    /// The number of keys that have a sample.
    std::size_t keysWithSamples() const;

    std::string name;                        ///< Empty if the file gives none.
    float volume = 0.0F;                     ///< The gain; a stop at 0 is silent.
    std::uint8_t swell = 0;                  ///< The group of stops whose gain it follows.
    LoadState loadState = LoadState::Loaded; ///< Main thread only.
    std::array<Sample, kKeys> samples;
    std::bitset<kKeys> extended; ///< The keys whose sound was set by `extend`.
};

} // namespace velmora
