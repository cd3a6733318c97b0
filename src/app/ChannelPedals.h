#pragma once

#include "midi/messages.h"
#include "sound/keys.h"

#include <array>
#include <bitset>
#include <cstddef>

namespace velmora {

/// The pedals of the channels of a sequence: which keys they hold beyond their notes.
class ChannelPedals {
public:
    using Keys = std::bitset<kKeys>;

    /// Call this when a note starts.
    void press(std::size_t channel, std::size_t key)
    {
        Channel& one = channels_[channel];
        one.pressed.set(key);
        one.held.reset(key);
    }

    /// Call this when a note ends. Returns false if a pedal holds its key.
    bool release(std::size_t channel, std::size_t key)
    {
        Channel& one = channels_[channel];
        one.pressed.reset(key);
        one.held[key] = one.isDown || one.caught[key];
        return !one.held[key];
    }

    /// Moves the sustain pedal. Returns the keys that it no longer holds.
    Keys setSustain(std::size_t channel, bool isDown)
    {
        channels_[channel].isDown = isDown;
        return letGo(channels_[channel]);
    }

    /// Moves the sostenuto pedal, which holds the keys that are down at that moment. Returns the
    /// keys that it no longer holds.
    Keys setSostenuto(std::size_t channel, bool isDown)
    {
        channels_[channel].caught = isDown ? channels_[channel].pressed : Keys();
        return letGo(channels_[channel]);
    }

    /// Forgets a key, which was stopped on every channel.
    void forget(std::size_t key)
    {
        for (Channel& one : channels_) {
            one.pressed.reset(key);
            one.held.reset(key);
        }
    }

private:
    struct Channel {
        Keys pressed, held; ///< By notes, and by the pedals alone.
        Keys caught;        ///< By the sostenuto pedal.
        bool isDown = false;
    };

    static Keys letGo(Channel& one)
    {
        if (one.isDown)
            return {};
        const Keys free = one.held & ~one.caught;
        one.held &= one.caught;
        return free;
    }

    std::array<Channel, midi::kChannels> channels_;
};

} // namespace velmora
