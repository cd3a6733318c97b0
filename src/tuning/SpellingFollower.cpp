#include "tuning/SpellingFollower.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr unsigned kSpelledClasses = 12;

/// Stands for no pitch class.
constexpr unsigned kNone = kSpelledClasses;

/// Returns the spelling of a pitch class that is nearest to a place; of two, its home.
int nearestPlace(unsigned pitchClass, double centre)
{
    const int home = meantone::kHomePlaces[pitchClass];
    int nearest = home;
    for (const int place : {home - 12, home + 12})
        if (std::abs(place) <= meantone::kFarthest &&
            std::abs(place - centre) < std::abs(nearest - centre))
            nearest = place;
    return nearest;
}

} // namespace

std::array<SpellingFollower::PitchClass, 12> SpellingFollower::atHome()
{
    std::array<PitchClass, 12> classes;
    for (unsigned i = 0; i < kSpelledClasses; ++i)
        classes[i].place = meantone::kHomePlaces[i];
    return classes;
}

void SpellingFollower::strike(unsigned key, double time)
{
    forgetUntil(time);
    const unsigned pitchClass = key % kSpelledClasses;
    PitchClass& struck = classes_[pitchClass];
    if (pressed_[key])
        return;
    if (struck.held == 0) {
        struck.place = nearestPlace(pitchClass, centre());
        struck.struck = time_;
    }
    pressed_.set(key);
    ++struck.held;
    if (settings_.correction > 0.0)
        correct();
}

void SpellingFollower::release(unsigned key, double time)
{
    if (!pressed_[key])
        return;
    forgetUntil(time);
    pressed_.reset(key);
    PitchClass& released = classes_[key % kSpelledClasses];
    --released.held;
    released_.add(1.0, released.place);
}

double SpellingFollower::centre() const
{
    return centreWithout(kNone);
}

double SpellingFollower::centreWithout(unsigned pitchClass) const
{
    Weight sum = released_;
    sum.add(settings_.anchorWeight, settings_.anchor);
    for (unsigned i = 0; i < kSpelledClasses; ++i)
        if (i != pitchClass)
            sum.add(settings_.held * classes_[i].held, classes_[i].place);
    return sum.places / sum.notes;
}

void SpellingFollower::forgetUntil(double time)
{
    if (time <= time_)
        return;
    const double left = std::exp((time_ - time) / settings_.memory);
    released_.notes *= left;
    released_.places *= left;
    time_ = time;
}

void SpellingFollower::correct()
{
    // A second pass lets the first notes of a chord follow what the others have become.
    for (int pass = 0; pass < 2; ++pass)
        for (unsigned i = 0; i < kSpelledClasses; ++i)
            if (PitchClass& recent = classes_[i];
                recent.held > 0 && time_ - recent.struck < settings_.correction)
                recent.place = nearestPlace(i, centreWithout(i));
}

} // namespace velmora
