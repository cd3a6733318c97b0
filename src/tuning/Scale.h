#pragma once

#include "tuning/Tuning.h"

#include <string>
#include <variant>
#include <vector>

namespace velmora {

/// A pitch of a scale, relative to its first note.
using ScalePitch = std::variant<Cent, Ratio>;

/// Returns the distance from the first note in cents.
double centsOf(const ScalePitch& pitch);

/// A scale of any number of notes that repeats after any period.
struct Scale {
    std::string description; ///< In UTF-8, one line.

    /// The pitches of the degrees 1, 2, 3 and so on. The last one is the period. If there are none,
    /// every degree is the first note.
    std::vector<ScalePitch> pitches;

    /// The names of the degrees from 0 on, as many as there are pitches; empty if they have none.
    std::vector<std::string> names;

    /// The distance in cents after which the scale repeats.
    double period() const { return pitches.empty() ? 0.0 : centsOf(pitches.back()); }

    /// Returns the distance of a degree from degree 0 in cents. Degrees below 0 and beyond the
    /// period lie in other repetitions of the scale.
    double cents(int degree) const;
};

} // namespace velmora
