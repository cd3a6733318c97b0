#pragma once

#include "tuning/SpellingFollower.h"
#include "tuning/Temperament.h"

namespace velmora {

/// A temperament of the 31 pitches of quarter-comma meantone that follows the music: each struck
/// key takes the spelling that fits best to what has sounded, so that nearly all thirds are pure
/// wherever the music goes.
class FollowingMeantone : public Temperament {
public:
    FollowingMeantone() : FollowingMeantone(SpellingFollower::Settings{}) {}
    explicit FollowingMeantone(const SpellingFollower::Settings& settings);

    std::unique_ptr<Temperament> fresh() const override;
    const Tuning& getTuning(unsigned long key) const override;
    std::optional<int> place(unsigned long key) const override;
    std::optional<double> centre() const override { return follower_.centre(); }
    void setTime(double seconds) override { time_ = seconds; }
    void setup(Tunable& instrument, unsigned char key, float velocity) override;
    void release(unsigned char key) override;

    /// How the keys are spelled.
    const SpellingFollower& follower() const { return follower_; }

protected:
    /// Spells a key that is struck now.
    void follow(unsigned char key) { follower_.strike(key, time_); }

    double time() const { return time_; }

private:
    SpellingFollower follower_;
    double time_ = 0.0;
};

} // namespace velmora
