#pragma once

#include "tuning/Drift.h"
#include "tuning/FollowingMeantone.h"
#include "tuning/Tuning.h"

#include <array>

namespace velmora {

/// A temperament that makes the intervals between the sounding keys as pure as they can be
/// together. Keys are spelled as `FollowingMeantone` does; from there each sounding pitch class
/// moves by a few cents, towards pure thirds of 5/4 and 6/5 and fifths of 3/2, and those that
/// sound already move as little as possible.
class PureTemperament : public FollowingMeantone {
public:
    explicit PureTemperament(Drift drift = Drift::TiedToA,
                             const SpellingFollower::Settings& settings = {});

    std::unique_ptr<Temperament> fresh() const override;
    const Tuning& getTuning(unsigned long key) const override { return current_[key % 12]; }
    void setup(Tunable& instrument, unsigned char key, float velocity) override;

    /// Lets a drift that returns do so while no key sounds.
    void fade(double factor) override;

    /// How far the sounding pitch classes lie above quarter-comma meantone, in cents in the mean.
    double drift() const override { return drift_; }

private:
    void adjust(const std::array<bool, 12>& wasHeld);
    void updatePitches();

    Drift policy_;
    double drift_ = 0.0;               ///< In cents.
    std::array<double, 12> offsets_{}; ///< From meantone, in cents.
    std::array<Cent, 12> current_;
};

} // namespace velmora
