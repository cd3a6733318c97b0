#pragma once

#include <cstddef>

namespace velmora {

/// A source of stereo sound that is rendered block by block.
class AudioSource {
public:
    /// The start of every block that is rendered offline, where each event is due as soon as it is
    /// sent.
    static constexpr double kOffline = 0.0;

    virtual ~AudioSource() = default;

    /// Writes the next `frames` frames, with samples from −1 to 1. `start` is the moment of the
    /// first frame, in the seconds of `getTime`: an event that is due during the block takes effect
    /// at its own frame, an earlier one at the first frame, and a later one in a later block.
    /// Called on the audio thread, so it must not wait, allocate or log.
    virtual void render(float* left, float* right, std::size_t frames, double start) = 0;

    /// Sets the frames per second. Called while nothing renders.
    virtual void setRate(double /*rate*/) {}

    /// The number of voices that sound. May be called on any thread.
    virtual std::size_t voices() const { return 0; }

    /// True while it saves work because the load is high. May be called on any thread.
    virtual bool savesWork() const { return false; }

    /// Reports how much of the previous period rendering has taken, as a fraction of its length, so
    /// that the source can save work. Called on the audio thread before each period.
    virtual void setLoad(double /*load*/) {}
};

} // namespace velmora
