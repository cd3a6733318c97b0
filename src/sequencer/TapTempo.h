#pragma once

#include <optional>
#include <vector>

namespace velmora {

/// Finds the tempo at which somebody taps. One late tap does not change it, because it is the
/// median of the last taps.
class TapTempo {
public:
    /// Adds a tap at a time in seconds. Returns the beats a minute, or nothing after the first tap.
    /// After a pause of two seconds and more, tapping begins anew.
    std::optional<double> tap(double time);

    /// Returns whether a tap at this time would go on with the earlier ones.
    bool goesOn(double time) const;

private:
    std::vector<double> times_;
};

} // namespace velmora
