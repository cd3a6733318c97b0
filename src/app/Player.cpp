#include "app/Player.h"

#include "base/Clock.h"

#include <algorithm>
#include <cassert>

namespace velmora {

namespace {

bool isKey(int key)
{
    return key >= 0 && key <= kLastKey;
}

} // namespace

void Player::setInstrument(Instrument& instrument)
{
    const std::lock_guard lock(mutex_);
    if (std::ranges::find(instruments_, &instrument, &Sounding::instrument) == instruments_.end())
        instruments_.push_back({&instrument, {}});
    instrument_ = &instrument;
    if (temperament_ != nullptr)
        instrument_->tune(*temperament_, 0, kLastKey);
}

void Player::setTemperament(Temperament& temperament)
{
    const std::lock_guard lock(mutex_);
    temperament_ = &temperament;
    if (instrument_ != nullptr)
        instrument_->tune(temperament, 0, kLastKey);
}

void Player::remove(const Instrument& instrument)
{
    const std::lock_guard lock(mutex_);
    assert(instrument_ != &instrument);
    std::erase_if(instruments_, [&](const Sounding& one) { return one.instrument == &instrument; });
}

bool Player::isCurrent(const Instrument& instrument) const
{
    const std::lock_guard lock(mutex_);
    return instrument_ == &instrument;
}

void Player::keyOn(int key, float velocity)
{
    if (!isKey(key))
        return;
    velocity = std::clamp(velocity, 0.0F, 1.0F);
    const double arrived = getTime();
    const std::lock_guard lock(mutex_);
    liveKeys_.press(static_cast<std::size_t>(key), velocity, arrived);
    start(key, velocity);
}

void Player::keyOff(int key)
{
    if (!isKey(key))
        return;
    const double arrived = getTime();
    const std::lock_guard lock(mutex_);
    liveKeys_.release(static_cast<std::size_t>(key), arrived);
    stopEverywhere(key);
}

void Player::play(int key, float velocity)
{
    const std::lock_guard lock(mutex_);
    start(key, velocity);
}

void Player::stop(int key)
{
    const std::lock_guard lock(mutex_);
    stopEverywhere(key);
}

void Player::isomorph(int n)
{
    const std::lock_guard lock(mutex_);
    if (instrument_ == nullptr || temperament_ == nullptr)
        return;
    temperament_->isomorph(*instrument_, n);
    markCurrent(Temperament::isomorphKey(n));
}

void Player::silence()
{
    const std::lock_guard lock(mutex_);
    liveKeys_.clear();
    for (auto& [instrument, keys] : instruments_) {
        instrument->silence();
        keys.reset();
    }
}

// See docs/decisions.md, 28.
void Player::fade()
{
    const std::lock_guard lock(mutex_);
    if (instrument_ != nullptr)
        instrument_->fade(kFadeFactor);
    if (temperament_ != nullptr)
        temperament_->fade(kFadeFactor);
    // Keys that were released before another instrument was chosen die away like the others.
    for (const auto& [instrument, keys] : instruments_)
        if (instrument != instrument_)
            instrument->fade(kFadeFactor);
}

void Player::start(int key, float velocity)
{
    if (instrument_ == nullptr || temperament_ == nullptr)
        return;
    temperament_->setup(*instrument_, static_cast<unsigned char>(key), velocity);
    instrument_->play(key, velocity);
    markCurrent(key);
}

// See docs/decisions.md, 30.
void Player::stopEverywhere(int key)
{
    const auto slot = static_cast<std::size_t>(key);
    for (auto& [instrument, keys] : instruments_) {
        if (instrument == instrument_ || keys[slot])
            instrument->stop(key);
        keys.reset(slot);
    }
}

void Player::markCurrent(int key)
{
    std::ranges::find(instruments_, instrument_, &Sounding::instrument)
        ->keys.set(static_cast<std::size_t>(key));
}

} // namespace velmora
