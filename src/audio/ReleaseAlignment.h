#pragma once

#include "audio/Pcm.h"

#include <cstddef>
#include <vector>

namespace velmora {

/// Where a release sound must begin so that it continues an attack sound in phase, and how loud.
class ReleaseAlignment {
public:
    /// How a release begins.
    struct Entry {
        float frame = 1.0F; ///< Its first frame, which may lie between two frames.
        float gain = 1.0F;  ///< Makes it as loud as the attack sound at that moment.
    };

    /// Compares two sounds whose own pitches are given in hertz, to within a semitone. Throws
    /// std::bad_alloc. May be called on any thread.
    ReleaseAlignment(const Pcm& attack, double attackPitch, const Pcm& release,
                     double releasePitch);

    /// Returns how to go on from a position in the attack sound, in frames. Does not allocate.
    Entry at(double position) const;

    /// How long the attack sound and the release fade into each other.
    double crossfadeSeconds() const { return crossfadeSeconds_; }

private:
    /// For every `spacing_` frames of the attack; empty if a sound is too short to be compared.
    std::vector<Entry> entries_;
    double spacing_ = 1.0;
    double attackPeriod_;
    double releasePeriod_; ///< In frames of the release.
    double crossfadeSeconds_;
};

} // namespace velmora
