#include "app/Player.h"

#include <algorithm>
#include <cassert>

namespace velmora {

namespace {

bool isKey(int key)
{
    return key >= 0 && key <= kLastKey;
}

std::uint8_t playable(std::size_t division)
{
    return static_cast<std::uint8_t>(std::min(division, kDivisions - 1));
}

} // namespace

void Player::setInstrument(Instrument& instrument)
{
    const std::lock_guard lock(mutex_);
    if (std::ranges::find(instruments_, &instrument, &Sounding::instrument) == instruments_.end())
        instruments_.push_back({&instrument, {}});
    instrument_ = &instrument;
    const std::uint8_t main = playable(instrument.mainDivision());
    divisions_.ofSources.fill(main);
    divisions_.ofChannels.fill(main);
    instrument_->bend(bend_);
    instrument_->setSoft(softPedals_ > 0);
    instrument_->setGlide(glide_);
    useVoices();
    if (temperament_ != nullptr)
        instrument_->tune(*temperament_, 0, kLastKey);
}

void Player::setDivisions(const Instrument& instrument, const Divisions& divisions)
{
    const std::lock_guard lock(mutex_);
    if (instrument_ != &instrument)
        return;
    std::ranges::transform(divisions.ofSources, divisions_.ofSources.begin(), playable);
    std::ranges::transform(divisions.ofChannels, divisions_.ofChannels.begin(), playable);
}

Player::Divisions Player::divisions() const
{
    const std::lock_guard lock(mutex_);
    return divisions_;
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

void Player::keyOn(int key, float velocity, KeySource source, double time)
{
    if (!isKey(key))
        return;
    velocity = std::clamp(velocity, 0.0F, 1.0F);
    const std::lock_guard lock(mutex_);
    inputDelay_ = std::max(inputDelay_.load(), getTime() - time);
    const std::size_t division = hasLivePart_ ? kLivePart : divisions_.ofSources[source];
    holders_.press(division, static_cast<std::size_t>(key), source);
    liveKeys_.press(static_cast<std::size_t>(key), velocity, time);
    start(division, key, velocity, time);
}

void Player::keyOff(int key, KeySource source, double time)
{
    if (!isKey(key))
        return;
    const auto slot = static_cast<std::size_t>(key);
    const std::lock_guard lock(mutex_);
    // The source may have pressed the key while it played another division.
    for (std::size_t division = 0; division < kDivisions; ++division)
        if (division == divisions_.ofSources[source] || holders_.isPressed(division, slot, source))
            release(division, slot, source, time);
    if (!holders_.isPressed(slot))
        liveKeys_.release(slot, time);
}

void Player::setSustain(KeySource source, bool down, double time)
{
    const std::lock_guard lock(mutex_);
    stopEverywhere(holders_.setSustain(source, down), time);
}

void Player::setSostenuto(KeySource source, bool down, double time)
{
    const std::lock_guard lock(mutex_);
    stopEverywhere(holders_.setSostenuto(source, down), time);
}

void Player::setSoft(bool soft)
{
    const std::lock_guard lock(mutex_);
    softPedals_ += soft ? 1 : -1;
    if (instrument_ != nullptr)
        instrument_->setSoft(softPedals_ > 0);
}

void Player::setTime(double seconds)
{
    const std::lock_guard lock(mutex_);
    time_ = seconds;
}

double Player::momentFor(double time) const
{
    return time > 0.0 ? time : time_.value_or(getTime());
}

void Player::setGlide(const Glide& glide)
{
    const std::lock_guard lock(mutex_);
    glide_ = glide;
    for (const auto& [instrument, keys] : instruments_)
        instrument->setGlide(glide);
}

void Player::bend(double cents, double time)
{
    const std::lock_guard lock(mutex_);
    bend_ = cents;
    for (const auto& [instrument, keys] : instruments_) {
        instrument->setDue(time);
        instrument->bend(cents);
    }
}

void Player::releaseAll(KeySource source)
{
    const double time = getTime();
    const std::lock_guard lock(mutex_);
    const DivisionKeys free = holders_.releaseAll(source);
    for (std::size_t key = 0; key < kKeys; ++key)
        if (liveKeys_.state(key) != 0 && !holders_.isPressed(key))
            liveKeys_.release(key, time);
    stopEverywhere(free, time);
}

void Player::click(Click click, double time)
{
    if (Metronome* metronome = metronome_)
        metronome->click(click, time);
}

void Player::cancelClicks()
{
    if (Metronome* metronome = metronome_)
        metronome->cancelAfter(getTime());
}

void Player::isomorph(int n)
{
    const std::lock_guard lock(mutex_);
    if (instrument_ == nullptr || temperament_ == nullptr)
        return;
    instrument_->setDue(getTime());
    temperament_->isomorph(*instrument_, n);
    const int key = Temperament::isomorphKey(n);
    const std::size_t division = playable(instrument_->mainDivision());
    holders_.press(division, static_cast<std::size_t>(key), kSequencer);
    markCurrent(division, key);
}

KeySet Player::soundingKeys() const
{
    KeySet sounding;
    const std::lock_guard lock(mutex_);
    for (const auto& [instrument, divisions] : instruments_)
        for (const KeySet& keys : divisions)
            sounding |= keys;
    return sounding;
}

void Player::silence()
{
    const std::lock_guard lock(mutex_);
    liveKeys_.clear();
    holders_.clear();
    pedals_ = {};
    if (temperament_ != nullptr)
        for (std::size_t key = 0; key < kKeys; ++key)
            temperament_->release(static_cast<unsigned char>(key));
    playing_ = {};
    unheard_ = {};
    for (auto& [instrument, keys] : instruments_) {
        instrument->silence();
        keys = {};
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

/// Lets the temperament choose the pitch of a key. Returns false if nothing can sound.
bool Player::follow(int key, float velocity, double time)
{
    if (instrument_ == nullptr || temperament_ == nullptr || !temperament_->isMapped(key))
        return false;
    instrument_->setDue(time);
    temperament_->setTime(momentFor(time));
    temperament_->setup(*instrument_, static_cast<unsigned char>(key), velocity);
    return true;
}

void Player::start(std::size_t division, int key, float velocity, double time)
{
    if (!follow(key, velocity, time))
        return;
    instrument_->playOn(division, key, velocity);
    markCurrent(division, key);
}

void Player::release(std::size_t division, std::size_t key, KeySource source, double time)
{
    holders_.release(division, key, source);
    if (!holders_.isHeld(division, key))
        stopEverywhere(division, key, time);
}

/// Tells the temperament that a key was released, if nobody holds it.
void Player::letGo(std::size_t key, double time)
{
    if (temperament_ == nullptr || holders_.isHeld(key))
        return;
    temperament_->setTime(momentFor(time));
    temperament_->release(static_cast<unsigned char>(key));
}

// See docs/decisions.md, 30.
void Player::stopEverywhere(std::size_t division, std::size_t key, double time)
{
    letGo(key, time);
    for (auto& [instrument, keys] : instruments_) {
        // Another division of the current instrument would be stopped by a key that it never had.
        const bool isOwn =
            instrument == instrument_ && division == playable(instrument->mainDivision());
        if (isOwn || keys[division][key]) {
            instrument->setDue(time);
            instrument->stopOn(division, static_cast<int>(key));
        }
        keys[division].reset(key);
    }
}

void Player::stopEverywhere(const DivisionKeys& keys, double time)
{
    for (std::size_t division = 0; division < kDivisions; ++division)
        for (std::size_t key = 0; key < kKeys && keys[division].any(); ++key)
            if (keys[division][key])
                stopEverywhere(division, key, time);
}

void Player::markCurrent(std::size_t division, int key)
{
    std::ranges::find(instruments_, instrument_, &Sounding::instrument)
        ->keys[division]
        .set(static_cast<std::size_t>(key));
}

} // namespace velmora
