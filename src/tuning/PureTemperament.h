#pragma once

#include "tuning/FollowingMeantone.h"
#include "tuning/Tuning.h"

#include <array>
#include <cstdint>

namespace velmora {

/// What becomes of the pitch when pure intervals lead it away from where it began.
enum class Drift : std::uint8_t {
    TiedToA, ///< A weak pull always leads back.
    Free,    ///< The pitch stays where the music has led it.
    Returns, ///< As free, but silence leads it back within a few seconds.
};

/// A temperament that makes the intervals between the sounding keys as pure as they can be
/// together. Keys are spelled as `FollowingMeantone` does; from there each sounding pitch class
/// moves by a few cents, towards pure thirds of 5/4 and 6/5 and fifths of 3/2, and those that
/// sound already move as little as possible.
class PureTemperament : public FollowingMeantone {
public:
    explicit PureTemperament(Drift drift = Drift::TiedToA);

    std::unique_ptr<Temperament> fresh() const override;
    const Tuning& getTuning(unsigned long key) const override { return current_[key % 12]; }
    void setup(Tunable& instrument, unsigned char key, float velocity) override;
    void release(unsigned char key) override;

    /// How far the sounding pitch classes lie above quarter-comma meantone, in cents in the mean.
    double drift() const override { return drift_; }

private:
    void adjust(const std::array<bool, 12>& wasHeld);
    void updatePitches();

    Drift policy_;
    double drift_ = 0.0;               ///< In cents.
    double silence_ = 0.0;             ///< When a key was last released, in seconds.
    std::array<double, 12> offsets_{}; ///< From meantone, in cents.
    std::array<Cent, 12> current_;
};

} // namespace velmora
