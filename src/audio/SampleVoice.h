#pragma once

#include "audio/Glide.h"

#include <cstddef>
#include <cstdint>

namespace velmora {

/// One OpenAL source of a sample, and what its gain does. It makes no call to OpenAL.
struct SampleVoice {
    enum class Phase : std::uint8_t {
        Silent,
        Held,
        Decaying, ///< Released, and dying away artificially.
        Ringing,  ///< A release that plays to its end.
        Ending,   ///< Fading to nothing.
    };

    bool isTail() const { return phase == Phase::Decaying || phase == Phase::Ringing; }

    /// True if the gain changes in the next step.
    bool isChanging() const
    {
        return phase == Phase::Decaying || phase == Phase::Ending ||
               (phase == Phase::Ringing && gain < fullGain);
    }

    /// Begins to ring with a gain that grows evenly to `full` in `frames`; 0 for at once.
    void ring(float full, double frames);

    /// Begins to fade to nothing in `frames`, unless it does so sooner already.
    void end(double frames);

    /// Steps the gain. `decay` is what the step leaves of the gain of a voice that decays. Returns
    /// false when a voice that ends has become silent.
    bool step(float decay, std::size_t frames);

    /// Begins to glide to another pitch, which it reaches after `frames`; 0 for at once.
    void glideTo(float target, double frames);

    /// The pitch that it has on its glide, without the bend.
    float heardPitch() const;

    unsigned source = 0;
    Phase phase = Phase::Silent;
    bool isCheap = false;   ///< Resampled by linear interpolation.
    std::uint8_t swell = 0; ///< The group of samples whose gain is applied too.
    float level = 1.0F;     ///< What the gain is multiplied by, so that mono is as loud as stereo.
    float gain = 0.0F;
    float fullGain = 0.0F; ///< What a ringing voice grows to.
    float slope = 0.0F;    ///< What the gain grows or falls by in each frame.
    float pitch = 1.0F;    ///< Where it glides to, without the bend.
    GlidePath glide;
    std::uint32_t place = 0; ///< In the list of the voices that sound.
    std::uint64_t age = 0;   ///< Voices that have changed their phase before.
    std::uint64_t began = 0; ///< The device's frame at which it was started.
};

} // namespace velmora
