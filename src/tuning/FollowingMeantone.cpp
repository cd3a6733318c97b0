#include "tuning/FollowingMeantone.h"

#include "tuning/Tunable.h"

namespace velmora {

FollowingMeantone::FollowingMeantone(const SpellingFollower::Settings& settings)
    : follower_(settings)
{
    for (auto& pitch : meantone::pitches())
        append(std::move(pitch));
}

std::unique_ptr<Temperament> FollowingMeantone::fresh() const
{
    auto copy = std::make_unique<FollowingMeantone>(follower_.settings());
    copy->setBaseFrequency(baseFrequency());
    return copy;
}

const Tuning& FollowingMeantone::getTuning(unsigned long key) const
{
    return *tunings()[meantone::indexOf(follower_.place(static_cast<unsigned>(key % 12)))];
}

std::optional<int> FollowingMeantone::place(unsigned long key) const
{
    return follower_.place(static_cast<unsigned>(key % 12));
}

void FollowingMeantone::setup(Tunable& instrument, unsigned char key, float /*velocity*/)
{
    follow(key);
    instrument.tune(*this, 0, 127);
}

void FollowingMeantone::release(unsigned char key)
{
    follower_.release(key, time_);
}

} // namespace velmora
