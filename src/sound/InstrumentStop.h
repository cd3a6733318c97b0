#pragma once

#include "sound/keys.h"
#include "sound/Sample.h"

#include <array>
#include <bitset>
#include <string>

namespace velmora {

class Temperament;

/// A rank of up to 128 samples, one for each MIDI key, with a volume of its own.
struct InstrumentStop {
    /// Lays a sound on a key that has none of its own, as `Sample::setBuffer` does: that of the
    /// lowest or the highest key that has one.
    void extend(int key, const Sound& sound, double rootPitch);

    /// Retunes the keys `lo` to `hi` inclusive.
    void tune(const Temperament& temperament, int lo, int hi);

    /// How many keys have a sound.
    std::size_t soundingKeys() const;

    std::string name;    ///< As the file gives it; empty where it gives none.
    float volume = 0.0F; ///< The gain; 0 keeps the stop silent.
    std::array<Sample, kKeys> samples;
    std::bitset<kKeys> extended; ///< The keys that were given a sound by `extend`.
};

} // namespace velmora
