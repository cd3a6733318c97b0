// How the player moves the pedals of sequences.

#include "app/Player.h"
#include "sequencer/Controllers.h"

#include <optional>

namespace velmora {

void Player::control(int number, int value, int channel, double time)
{
    constexpr int kFirstDown = 64;
    const bool isDown = value >= kFirstDown;
    const auto voice = static_cast<std::size_t>(channel);
    if (number == midi::kSoft) {
        bool changes = false;
        {
            const std::lock_guard lock(mutex_);
            changes = softChannels_[voice] != isDown;
            softChannels_[voice] = isDown;
        }
        if (changes)
            setSoft(isDown);
    } else if (number == midi::kSustain || number == midi::kSostenuto) {
        const std::lock_guard lock(mutex_);
        const ChannelPedals::Keys free = number == midi::kSustain
                                             ? pedals_.setSustain(voice, isDown)
                                             : pedals_.setSostenuto(voice, isDown);
        for (std::size_t key = 0; key < kKeys && free.any(); ++key)
            if (free[key] && playing_[voice][key]) // the channel may have been muted since
                stopChannel(voice, key, time);
    } else {
        controlPart(voice, number, value, time);
    }
}

/// Moves what the instruments have for the channel's own part. A channel without one moves the
/// instrument itself, and bends everything, as the wheel of a live keyboard does.
void Player::controlPart(std::size_t channel, int number, int value, double time)
{
    const auto slot = static_cast<std::size_t>(number);
    const int resting = restingValue(number);
    const bool isWheel = number == midi::kPitchWheel;
    std::optional<int> ownValue; // of the instrument itself
    {
        const std::lock_guard lock(mutex_);
        if (!hasPart_[channel] || movedOwn_[channel][slot])
            ownValue = hasPart_[channel] ? resting : value;
        movedOwn_[channel].set(slot, !hasPart_[channel] && value != resting);
        for (const auto& [instrument, keys] : instruments_) {
            instrument->setDue(time);
            instrument->controlPart(channel + 1, number, value);
            if (ownValue && !isWheel)
                instrument->controlPart(0, number, *ownValue);
        }
    }
    constexpr double kBendRange = 200.0; // cents
    if (ownValue && isWheel)
        bend(kBendRange * (*ownValue - midi::kWheelCentre) / midi::kWheelCentre, time);
}

} // namespace velmora
