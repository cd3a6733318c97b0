// How the player plays the channels of sequences.

#include "app/Player.h"

namespace velmora {

void Player::setHeard(const ChannelSet& channels)
{
    const std::lock_guard lock(mutex_);
    heard_ = channels;
}

void Player::setVoices(const VoiceSounds& voices)
{
    {
        const std::lock_guard lock(mutex_);
        voices_ = voices;
        useVoices();
        for (std::size_t channel = 0; channel < midi::kChannels; ++channel)
            for (std::size_t key = 0; !isAudible(channel) && key < kKeys; ++key)
                if (playing_[channel][key])
                    stopChannel(channel, key, 0.0);
    }
    voicesUsed_();
}

bool Player::isAudible(std::size_t channel) const
{
    return heard_[channel] && voices_[channel].isAudible;
}

void Player::useVoices()
{
    if (instrument_ == nullptr)
        return;
    instrument_->expectPresets(expectedPrograms_);
    for (std::size_t channel = 0; channel < midi::kChannels; ++channel)
        useVoice(channel);
    useLiveSound();
}

void Player::useVoice(std::size_t channel)
{
    // The first part is the instrument's own.
    hasPart_[channel] = !voices_[channel].part.isPlain() &&
                        instrument_->setPart(channel + 1, voices_[channel].part);
}

void Player::setLiveSound(const PartSound& sound)
{
    {
        const std::lock_guard lock(mutex_);
        liveSound_ = sound;
        if (instrument_ != nullptr)
            useLiveSound();
    }
    voicesUsed_();
}

void Player::useLiveSound()
{
    hasLivePart_ = !liveSound_.isPlain() && instrument_->setPart(kLivePart, liveSound_);
}

void Player::setProgram(int channel, const std::optional<PartSound::Preset>& preset, double time)
{
    const auto voice = static_cast<std::size_t>(channel);
    const std::lock_guard lock(mutex_);
    voices_[voice].part.preset = preset;
    if (instrument_ == nullptr)
        return;
    instrument_->setDue(time);
    useVoice(voice);
}

void Player::expectPrograms(std::span<const PartSound::Preset> presets)
{
    std::vector<PartSound::Preset> expected(presets.begin(), presets.end());
    const std::lock_guard lock(mutex_);
    expectedPrograms_.swap(expected); // the old ones are freed without the lock
}

void Player::play(int key, float velocity, int channel, double time)
{
    const auto slot = static_cast<std::size_t>(key);
    const auto voice = static_cast<std::size_t>(channel);
    const std::lock_guard lock(mutex_);
    unheard_[voice][slot] = !isAudible(voice);
    if (unheard_[voice][slot]) {
        follow(key, velocity, time);
        return;
    }
    const auto division =
        static_cast<std::uint8_t>(hasPart_[voice] ? voice + 1 : divisions_.ofChannels[voice]);
    // The channel may have changed its division or its part since it started the key there.
    if (playing_[voice][slot] && startedOn_[voice][slot] != division)
        release(startedOn_[voice][slot], slot, kSequencer, time);
    startedOn_[voice][slot] = division;
    playing_[voice].set(slot);
    pedals_.press(voice, slot);
    holders_.press(division, slot, kSequencer);
    start(division, key, velocity, time);
}

void Player::stop(int key, int channel, double time)
{
    const auto slot = static_cast<std::size_t>(key);
    const std::lock_guard lock(mutex_);
    if (channel != kEveryChannel) {
        const auto voice = static_cast<std::size_t>(channel);
        if (unheard_[voice][slot] || pedals_.release(voice, slot))
            stopChannel(voice, slot, time);
        return;
    }
    pedals_.forget(slot);
    for (std::size_t voice = 0; voice < midi::kChannels; ++voice) {
        playing_[voice].reset(slot);
        unheard_[voice].reset(slot);
    }
    for (std::size_t division = 0; division < kDivisions; ++division)
        release(division, slot, kSequencer, time);
}

void Player::stopChannel(std::size_t channel, std::size_t key, double time)
{
    // Another voice may play the same key of the same division.
    if (unheard_[channel][key]) {
        unheard_[channel].reset(key);
        letGo(key, time);
        return;
    }
    playing_[channel].reset(key);
    release(startedOn_[channel][key], key, kSequencer, time);
}

} // namespace velmora
