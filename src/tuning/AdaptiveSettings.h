#pragma once

#include "tuning/Drift.h"

namespace velmora {

/// How the temperaments that follow the music do so.
struct AdaptiveSettings {
    /// For so many seconds the notes that follow may still change the spelling of a note, so that
    /// the last note of a chord can mend its first; 0 for never.
    double correction = 0.04;

    Drift drift = Drift::TiedToA;

    bool operator==(const AdaptiveSettings&) const = default;
};

} // namespace velmora
